// Where a control stands, and the way between its three spaces.
#include "toolkit/ControlPane.h"
#include "toolkit/PopupPlacement.h"
#include "toolkit/RectAlgebra.h"

void ControlPane::SetBounds(const Rect& newBounds) {
  bounds = newBounds;
}

Rect ControlPane::GetBounds() const {
  return bounds;
}

void ControlPane::MoveToPoint(const Point& point) {
  MoveTo(point.x, point.y);
}

void ControlPane::MoveTo(int32_t x, int32_t y) {
  bounds = MovedTo(bounds, {x, y});
}

void ControlPane::MoveBy(int32_t dx, int32_t dy) {
  MoveTo(SaturatedInt(int64_t{bounds.left} + dx), SaturatedInt(int64_t{bounds.top} + dy));
}

Rect ControlPane::GetGlobalBounds() const {
  Rect area = bounds;
  for (const ControlPane* pane = owner; pane != nullptr; pane = pane->owner) {
    pane->LocalToOwnerRect(&area);
  }
  return area;
}

Rect ControlPane::GetLocalBounds() const {
  return AtOrigin(bounds);
}

void ControlPane::ClipToLocalBounds(Rect* rect) const {
  *rect = ClampedInto(*rect, GetLocalBounds());
}

void ControlPane::ClipToVisibleArea(Rect* rect) const {
  LocalToOwnerRect(rect);
  *rect = ClampedInto(*rect, bounds);
  if (owner != nullptr) owner->ClipToVisibleArea(rect);
  OwnerToLocalRect(rect);
}

void ControlPane::LocalToGlobalRect(Rect* rect) const {
  const Rect area = GetGlobalBounds();
  *rect = MovedBy(*rect, area.left, area.top);
}

void ControlPane::LocalToGlobalPoint(Point* point) const {
  const Rect area = GetGlobalBounds();
  *point = MovedBy(*point, area.left, area.top);
}

void ControlPane::GlobalToLocalRect(Rect* rect) const {
  const Rect area = GetGlobalBounds();
  *rect = MovedBy(*rect, -int64_t{area.left}, -int64_t{area.top});
}

void ControlPane::GlobalToLocalPoint(Point* point) const {
  const Rect area = GetGlobalBounds();
  *point = MovedBy(*point, -int64_t{area.left}, -int64_t{area.top});
}

void ControlPane::OwnerToGlobalRect(Rect* rect) const {
  if (owner != nullptr) owner->LocalToGlobalRect(rect);
}

void ControlPane::OwnerToGlobalPoint(Point* point) const {
  if (owner != nullptr) owner->LocalToGlobalPoint(point);
}

void ControlPane::GlobalToOwnerRect(Rect* rect) const {
  if (owner != nullptr) owner->GlobalToLocalRect(rect);
}

void ControlPane::GlobalToOwnerPoint(Point* point) const {
  if (owner != nullptr) owner->GlobalToLocalPoint(point);
}

void ControlPane::LocalToOwnerRect(Rect* rect) const {
  *rect = MovedBy(*rect, bounds.left, bounds.top);
}

void ControlPane::LocalToOwnerPoint(Point* point) const {
  *point = MovedBy(*point, bounds.left, bounds.top);
}

void ControlPane::OwnerToLocalRect(Rect* rect) const {
  *rect = MovedBy(*rect, -int64_t{bounds.left}, -int64_t{bounds.top});
}

void ControlPane::OwnerToLocalPoint(Point* point) const {
  *point = MovedBy(*point, -int64_t{bounds.left}, -int64_t{bounds.top});
}
