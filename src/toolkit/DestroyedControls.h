// Which controls have gone, for code that has just called out and wants to touch its own again.
#pragma once

class ControlPane;

// Process-wide, for the host's UI thread. Every control that is destroyed enters itself; making a
// control forgets all entries. Where controls may be made as well, a ControlWatch tells for sure.
class DestroyedControls {
 public:
  static void Enter(const ControlPane* control) noexcept;
  static void ForgetAll();
  static bool Contains(const ControlPane* control);
};
