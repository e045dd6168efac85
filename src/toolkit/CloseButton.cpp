// A button with a cross, which takes away what it belongs to.
#include "toolkit/CloseButton.h"

#include <algorithm>

#include "toolkit/RectAlgebra.h"
#include "toolkit/StockPaint.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr double kArmShare = 0.22;  // of the side, from the middle along each axis
constexpr double kArmWidth = 1.5;
constexpr int32_t kDisabledOpacity = 120;

}  // namespace

CloseButton::CloseButton(ControlPane* ownerPane, const Rect& initialBounds)
    : MomentaryButton(ownerPane, initialBounds, nullptr, false, nullptr) {}

void CloseButton::SetEnabled(bool enabled) {
  MomentaryButton::SetEnabled(enabled);
  SetDirty(true);
}

void CloseButton::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  const PaintTarget target = {buffer, area.clip, IsEnabled() ? 256 : kDisabledOpacity};
  const int32_t sideLength = SaturatedInt(std::min(WidthOf(area.bounds), HeightOf(area.bounds)));
  const Rect disc = CentredSquare(area.bounds, sideLength);
  const double side = sideLength;
  if (IsEnabled() && (pressed || ShowsHover())) {
    FillRound(target, disc, side / 2.0, pressed ? ThemeColors::Gray128 : ThemeColors::Gray76);
  }
  const double x = disc.left + side / 2.0;
  const double y = disc.top + side / 2.0;
  const double arm = side * kArmShare;
  const bool bright = pressed || ShowsHover();
  const ColorBGRA color = bright ? StockColors::TextOver : ThemeColors::Gray153;
  DrawBar(target, {x - arm, y - arm}, {x + arm, y + arm}, kArmWidth, color);
  DrawBar(target, {x + arm, y - arm}, {x - arm, y + arm}, kArmWidth, color);
  if (HasFocus()) StrokeRound(target, disc, side / 2.0, StockColors::TextOver);
}
