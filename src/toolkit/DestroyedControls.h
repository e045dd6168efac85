// Which controls have gone, for code that has just called out and wants to touch its own again.
#pragma once

class ControlPane;

// Process-wide, for the host's UI thread. Every control that is destroyed enters itself; making a
// control forgets all entries.
class DestroyedControls {
 public:
  static void Enter(const ControlPane* control);
  static void ForgetAll();
  static bool Contains(const ControlPane* control);
};
