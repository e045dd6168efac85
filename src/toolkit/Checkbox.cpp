// A box with a check mark while it is on, and its label beside it.
#include "toolkit/Checkbox.h"

#include <algorithm>

#include "toolkit/RectAlgebra.h"
#include "toolkit/StockPaint.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kBoxSide = 14;
constexpr int32_t kLabelGap = 6;
constexpr double kCornerRadius = 2.0;
constexpr double kMarkWidth = 2.0;
constexpr int32_t kDisabledOpacity = 120;

void PaintMark(const PaintTarget& target, const Rect& box, ColorBGRA color) {
  const double x = box.left;
  const double y = box.top;
  const auto side = static_cast<double>(WidthOf(box));
  const PathPoint corner = {x + side * 0.42, y + side * 0.72};
  DrawBar(target, {x + side * 0.20, y + side * 0.50}, {corner.x + 0.5, corner.y + 0.5}, kMarkWidth,
          color);
  DrawBar(target, {corner.x - 0.5, corner.y + 0.5}, {x + side * 0.80, y + side * 0.26}, kMarkWidth,
          color);
}

}  // namespace

void Checkbox::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  const PaintTarget target = {buffer, area.clip, IsEnabled() ? 256 : kDisabledOpacity};
  const int64_t side = std::min({int64_t{kBoxSide}, WidthOf(area.bounds), HeightOf(area.bounds)});
  Rect box = CentredSquare(area.bounds, SaturatedInt(side));
  box.left = area.bounds.left;
  box.right = SaturatedInt(box.left + side);

  ColorBGRA fill = pressed ? StockColors::Accent : ThemeColors::MenuFill;
  if (ShowsHover()) fill = pressed ? StockColors::AccentOver : ThemeColors::MenuFrame;
  if (IsHeld()) fill = ThemeColors::Gray102;
  FillRound(target, box, kCornerRadius, fill);
  StrokeRound(target, box, kCornerRadius, ThemeColors::Gray128);
  if (pressed) PaintMark(target, box, StockColors::TextOver);
  PaintFocus({box, area.clip}, buffer);

  const std::string& label = pressed ? onLabel : offLabel;
  const Rect place = {SaturatedInt(int64_t{box.right} + kLabelGap), area.bounds.top,
                      area.bounds.right, area.bounds.bottom};
  DrawCaption(target, label, place, TextAlignment::kLeft,
              ShowsHover() ? StockColors::TextOver : StockColors::Text, font);
}
