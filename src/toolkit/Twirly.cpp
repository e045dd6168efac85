// An arrow that folds a group out and in again.
#include "toolkit/Twirly.h"

#include <algorithm>

#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr double kReach = 0.28;  // of the smaller side, from the middle to the arrow's ends
constexpr double kFocusRadius = 2.0;

}  // namespace

void Twirly::SetOpen(bool newOpen) {
  if (open == newOpen) return;
  open = newOpen;
  SetDirty(true);
}

void Twirly::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = true;
  RedrawAndTellPress();
}

void Twirly::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  const bool inside = Contains(GetLocalBounds(), point);
  if (inside == pressed) return;
  pressed = inside;
  RedrawSelf();
}

void Twirly::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  if (!pressed) return;
  pressed = false;
  open = !open;
  if (RedrawAndTellListener()) NotifyReleased(this);
}

void Twirly::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  const PaintTarget target = TargetFor(buffer, area);
  const Rect& place = area.bounds;
  const double x = place.left + static_cast<double>(WidthOf(place)) / 2.0;
  const double y = place.top + static_cast<double>(HeightOf(place)) / 2.0;
  const double r = static_cast<double>(std::min(WidthOf(place), HeightOf(place))) * kReach;
  ColorBGRA color = IsMouseOver() ? StockColors::TextOver : ThemeColors::Gray153;
  if (pressed) color = StockColors::AccentOver;
  if (open) {
    FillTriangle(target, {x - r, y - r * 0.7}, {x + r, y - r * 0.7}, {x, y + r * 0.9}, color);
  } else {
    FillTriangle(target, {x - r * 0.7, y - r}, {x + r * 0.9, y}, {x - r * 0.7, y + r}, color);
  }
  PaintFocus(target, place, kFocusRadius);
}
