// A button with an icon at the left of its plate and a label centred in the rest.
#include "toolkit/ButtonWithIconAndCenteredText.h"

#include <algorithm>

#include "toolkit/Plate.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/StockPaint.h"

namespace {

constexpr double kCornerRadius = 3.0;
constexpr int32_t kPadX = 4;

}  // namespace

void ButtonWithIconAndCenteredText::Paint(const Rect& rect, ImageBuffer& buffer,
                                          const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  if (PaintStrip(area, buffer)) return;
  const PlateLook look{IsEnabled(), ShowsHover(), pressed};
  DrawPlate(buffer, area.bounds, PlateColor(look, StockColors::DisabledPlate), area.clip);
  Rect label = area.bounds;
  if (GetCurrentIcon() != nullptr) {
    // The icon's cell is as wide as the button is high.
    Rect cell = area.bounds;
    cell.left = SaturatedInt(int64_t{cell.left} + kPadX);
    cell.right = SaturatedInt(std::min<int64_t>(cell.left + HeightOf(cell), cell.right));
    PaintIcon({cell, Intersection(area.clip, area.bounds)}, buffer);
    label.left = cell.right;
    label.right = SaturatedInt(int64_t{label.right} - kPadX);
  }
  const Rect clip = Intersection(area.clip, label);
  if (!IsEmpty(clip)) DrawLabel(label, clip, PlateTextColor(pressed), buffer, labelAlignment);
  if (HasFocus()) {
    StrokeRound({buffer, area.clip}, area.bounds, kCornerRadius, StockColors::TextOver);
  }
}
