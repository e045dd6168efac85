// A window that nothing happens in: it lets a panel be given events without a host.
#pragma once

#include "toolkit/WindowContext.h"

class StillWindow : public WindowContext {
 public:
  Rect GetClientRect() const override { return {}; }
  Point GetMousePosition() const override { return {}; }
  Modifiers GetModifiers() const override { return {}; }
  void ShowCursor(bool /*show*/) override {}
  void SetMousePosition(const Point& /*point*/) override {}
  void SetScreenMousePosition(const Point& /*point*/) override {}
  Point GetScreenMousePosition() const override { return {}; }
};
