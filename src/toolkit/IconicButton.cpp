// A button with an icon that gets a ground only under the pointer, when pressed or on.
#include "toolkit/IconicButton.h"

#include "toolkit/StockPaint.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr double kCornerRadius = 3.0;

}  // namespace

void IconicButton::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  if (PaintStrip(area, buffer)) return;
  const PaintTarget target = {buffer, area.clip};
  if (IsEnabled() && (pressed || ShowsHover())) {
    FillRound(target, area.bounds, kCornerRadius,
              pressed ? ThemeColors::Gray25 : ThemeColors::MenuFrame);
  }
  PaintIcon(area, buffer);
  if (HasFocus()) StrokeRound(target, area.bounds, kCornerRadius, StockColors::AccentOver);
}
