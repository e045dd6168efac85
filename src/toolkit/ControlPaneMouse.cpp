// Which control a point hits, and how a control takes the mouse and the keys.
#include "toolkit/ControlPane.h"
#include "toolkit/RectAlgebra.h"

ControlPane* ControlPane::HitTest(const Point& point) {
  for (ControlPane* const child : children) {
    if (!child->IsVisible() || !child->IsEnabled()) continue;
    if (ControlPane* const hit = child->HitTest(point)) return hit;
  }
  return IsVisible() && IsEnabled() && IsHitAt(point) ? this : nullptr;
}

ControlPane* ControlPane::FindHelpControl(const Point& point) {
  for (ControlPane* const child : children) {
    if (!child->IsVisible()) continue;
    if (ControlPane* const hit = child->FindHelpControl(point)) return hit;
  }
  const char* const text = GetHelpText();
  const bool hasHelp = text != nullptr && *text != '\0';
  return hasHelp && IsVisible() && IsHitAt(point) ? this : nullptr;
}

bool ControlPane::IsHitAt(const Point& point) const {
  // Cutting by every owner takes longer, so it is left to the few that may be hit.
  if (!Contains(GetGlobalBounds(), point)) return false;
  Rect area = GetLocalBounds();
  ClipToVisibleArea(&area);
  LocalToGlobalRect(&area);
  if (!Contains(area, point)) return false;
  Point local = point;
  GlobalToLocalPoint(&local);
  return ContainsLocalPoint(local);
}

bool ControlPane::ContainsLocalPoint(const Point& point) const {
  return Contains(GetLocalBounds(), point);
}

void ControlPane::BeginTracking(WindowContext* /*context*/, const Point& point,
                                const Modifiers& modifiers, bool isDoubleClick, int32_t button) {
  downPoint = point;
  downPointLocal = point;
  GlobalToLocalPoint(&downPointLocal);
  downModifiers = modifiers;
  doubleClick = isDoubleClick;
  mouseButton = button;
  downBounds = bounds;
  SetTrackingMode(kTrackPress);
}

void ControlPane::EndTracking() {
  SetTrackingMode(kTrackNone);
}

void ControlPane::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {}

void ControlPane::OnRightMouseDown(WindowContext* /*context*/, const Point& /*point*/) {}

void ControlPane::OnMouseDrag(WindowContext* /*context*/, const Point& /*point*/) {}

void ControlPane::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {}

bool ControlPane::IsDoubleClick() const {
  return doubleClick;
}

bool ControlPane::IsShiftDown() const {
  return downModifiers.shift;
}

bool ControlPane::IsAltDown() const {
  return downModifiers.alt;
}

bool ControlPane::IsCommandDown() const {
  return downModifiers.command;
}

bool ControlPane::IsControlDown() const {
  return downModifiers.control;
}

void ControlPane::SetTrackingMode(int32_t mode) {
  trackingMode = mode;
}

int32_t ControlPane::GetTrackingMode() const {
  return trackingMode;
}

int32_t ControlPane::GetCursorAt(WindowContext* /*context*/, const Point& /*point*/,
                                 const Modifiers& /*modifiers*/) {
  return 0;
}

void ControlPane::OnMouseEnter() {
  mouseOver = true;
}

void ControlPane::OnMouseLeave() {
  mouseOver = false;
}

void ControlPane::OnFocusGained() {}

void ControlPane::OnFocusLost() {}

bool ControlPane::OnKeyDown(WindowContext* /*context*/, int32_t /*key*/,
                            const Modifiers& /*modifiers*/) {
  return false;
}

bool ControlPane::OnKeyUp(WindowContext* /*context*/, int32_t /*key*/,
                          const Modifiers& /*modifiers*/) {
  return false;
}

void ControlPane::NotifyPressed(ControlPane* source) {
  if (owner != nullptr) owner->NotifyPressed(source);
}

void ControlPane::NotifyReleased(ControlPane* source) {
  if (owner != nullptr) owner->NotifyReleased(source);
}
