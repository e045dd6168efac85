// The pointer of the system.
#include "platform/Pointer.h"

#include <windows.h>

namespace {

// For a desktop that doesn't let the process see the pointer, such as that of a locked screen.
PointerPosition lastPosition;

}  // namespace

PointerPosition GetPointerPosition() {
  POINT point{};
  if (GetCursorPos(&point) != 0) lastPosition = {point.x, point.y};
  return lastPosition;
}

void SetPointerPosition(const PointerPosition& position) {
  lastPosition = position;
  SetCursorPos(position.x, position.y);
}

PointerPosition GetScreenExtent() {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

std::optional<bool> IsPointerShown() {
  CURSORINFO info{};
  info.cbSize = sizeof(info);
  if (GetCursorInfo(&info) == 0) return std::nullopt;
  return (info.flags & CURSOR_SHOWING) != 0;
}

void ShowPointer(bool show) {
  ShowCursor(show ? TRUE : FALSE);
}
