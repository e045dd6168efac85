// The tree's view of the host's window during one event.
#pragma once

#include "AE_EffectUI.h"
#include "host/PanelPointer.h"
#include "toolkit/WindowContext.h"

// There is no window handle to ask, so the event answers. Its coordinates are the tree's global
// ones: the panel stands at its frame's place in them, and so do rectangle and pointer below.
class WindowContext_AE final : public WindowContext {
 public:
  // frame     the panel's
  // pointer   outlives this object and may change while it lives
  WindowContext_AE(const PF_UnionableRect& frame, const PanelPointer& pointerOfEvent);
  ~WindowContext_AE() override = default;
  WindowContext_AE(const WindowContext_AE&) = delete;
  WindowContext_AE& operator=(const WindowContext_AE&) = delete;

  Rect GetClientRect() const override;      // the panel's frame
  Point GetMousePosition() const override;  // the point of the last event of the mouse
  Modifiers GetModifiers() const override;  // of this moment, or else of that event
  // Asks the system only where the pointer has to change.
  void ShowCursor(bool show) override;
  void SetCursor(int32_t id) override { cursorId = id; }
  void SetMousePosition(const Point& point) override;
  void SetScreenMousePosition(const Point& point) override;
  Point GetScreenMousePosition() const override;
  Point GetScreenSize() const override;

 private:
  Rect clientRect;
  const PanelPointer& pointer;
  int32_t cursorId = 0;  // as the tree set it last
};
