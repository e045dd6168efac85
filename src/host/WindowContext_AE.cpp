// A window that the event stands for.
#include "host/WindowContext_AE.h"

#include "platform/HeldKeys.h"
#include "platform/Pointer.h"
#include "toolkit/RectAlgebra.h"

namespace {

// For systems that don't say whether they show the pointer.
bool cursorVisible = true;

}  // namespace

WindowContext_AE::WindowContext_AE(const PF_UnionableRect& frame,
                                   const PanelPointer& pointerOfEvent)
    : clientRect{frame.left, frame.top, frame.right, frame.bottom}, pointer(pointerOfEvent) {}

Rect WindowContext_AE::GetClientRect() const {
  return clientRect;
}

Point WindowContext_AE::GetMousePosition() const {
  return MovedBy(pointer.point, -int64_t{originX}, -int64_t{originY});
}

Modifiers WindowContext_AE::GetModifiers() const {
  const std::optional<HeldKeys> held = GetHeldKeys();
  if (!held) return pointer.modifiers;
  return {held->shift, held->alt, held->alt, held->control, held->space};
}

void WindowContext_AE::ShowCursor(bool show) {
  if (IsPointerShown().value_or(cursorVisible) != show) ShowPointer(show);
  cursorVisible = show;
}

// Without a window, where the panel stands on the screen isn't known: what is in the window is
// taken for the screen's.
void WindowContext_AE::SetMousePosition(const Point& point) {
  SetScreenMousePosition(MovedBy(point, originX, originY));
}

void WindowContext_AE::SetScreenMousePosition(const Point& point) {
  SetPointerPosition({point.x, point.y});
}

Point WindowContext_AE::GetScreenMousePosition() const {
  const PointerPosition position = GetPointerPosition();
  return {position.x, position.y};
}

Point WindowContext_AE::GetScreenSize() const {
  const PointerPosition extent = GetScreenExtent();
  return {extent.x, extent.y};
}
