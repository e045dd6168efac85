// A root without a host: a ground of one colour, repaints as invalid areas of its window.
#include "toolkit/SimpleTopControlPane.h"

#include "toolkit/PopupToggle.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/SharedBuffers.h"

SimpleTopControlPane::SimpleTopControlPane(const Rect& initialBounds)
    : TopControlPane(initialBounds) {
  const Rect size = AtOrigin(initialBounds);
  EnsureScreenBuffer(size.right, size.bottom);
}

void SimpleTopControlPane::SetBackground(ColorBGRA color) {
  if (background == color) return;
  background = color;
  SetDirty(true);
}

void SimpleTopControlPane::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const Rect area = MovedBy(AtOrigin(rect), position.x, position.y);
  buffer.FillRect(area, background, 256, &area);
}

bool SimpleTopControlPane::IsOpaqueOver(const Rect& rect) const {
  return !IsEmpty(rect) && Intersection(GetLocalBounds(), rect) == rect;
}

void SimpleTopControlPane::NotifyPressed(ControlPane* /*source*/) {}

void SimpleTopControlPane::NotifyReleased(ControlPane* /*source*/) {}

bool SimpleTopControlPane::ClickClosesPopup(ControlPane* popup, ControlPane* hit) {
  if (dynamic_cast<PopupToggle*>(hit) != nullptr) return false;
  return TopControlPane::ClickClosesPopup(popup, hit);
}
