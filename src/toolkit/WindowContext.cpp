// What every window does alike: the area that is to be painted again.
#include "toolkit/WindowContext.h"

#include "toolkit/RectAlgebra.h"

void WindowContext::SetCursor(int32_t /*id*/) {}

bool WindowContext::SetCursorInRect(const Point& point, const Rect& rect, int32_t id) {
  if (!Contains(rect, point)) return false;
  SetCursor(id);
  return true;
}

void WindowContext::Flush() {}

Point WindowContext::GetScreenSize() const {
  return {};
}

void WindowContext::Invalidate(const Rect& rect) {
  invalidRect = UnionOf(invalidRect, rect);
}

Rect WindowContext::GetInvalidRect() const {
  return invalidRect;
}

void WindowContext::ClearInvalidRect() {
  invalidRect = {};
}
