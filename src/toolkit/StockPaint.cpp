// Shapes and captions that the stock controls are drawn of.
#include "toolkit/StockPaint.h"

#include <algorithm>
#include <cmath>

#include "drawing/SharedPainter.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr double kTriangleRadius = 1.0;
constexpr double kStrokeWidth = 1.0;

void DrawSharedPath(const PaintTarget& target, ColorBGRA color, double lineWidth) {
  SharedRasterizer().DrawPath(SharedPath(), target.buffer, color, target.opacity, false,
                              &target.clip, nullptr, lineWidth);
}

void DrawRound(const PaintTarget& target, const Rect& rect, double radius, ColorBGRA color,
               double lineWidth) {
  if (IsEmpty(rect)) return;
  // Rounder than half a side, the corners would reach beyond the rectangle.
  radius = std::min({radius, static_cast<double>(WidthOf(rect)) / 2.0,
                     static_cast<double>(HeightOf(rect)) / 2.0});
  SharedPath().SetRoundRect(rect, radius, true, true, true, true);
  DrawSharedPath(target, color, lineWidth);
}

}  // namespace

void FillRound(const PaintTarget& target, const Rect& rect, double radius, ColorBGRA color) {
  DrawRound(target, rect, radius, color, 0.0);
}

void StrokeRound(const PaintTarget& target, const Rect& rect, double radius, ColorBGRA color) {
  DrawRound(target, rect, radius, color, kStrokeWidth);
}

void FillTriangle(const PaintTarget& target, const PathPoint& a, const PathPoint& b,
                  const PathPoint& c, ColorBGRA color) {
  SharedPath().SetRoundTriangle(a, b, c, kTriangleRadius);
  DrawSharedPath(target, color, 0.0);
}

void DrawBar(const PaintTarget& target, const PathPoint& a, const PathPoint& b, double width,
             ColorBGRA color) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double length = std::sqrt(dx * dx + dy * dy);
  if (!(length > 0.0)) return;
  // Half the width, across the bar.
  const double x = -dy / length * width / 2.0;
  const double y = dx / length * width / 2.0;
  PathBuilder& path = SharedPath();
  path.Clear();
  path.MoveTo({a.x + x, a.y + y});
  path.LineTo({b.x + x, b.y + y});
  path.LineTo({b.x - x, b.y - y});
  path.LineTo({a.x - x, a.y - y});
  path.LineTo({a.x + x, a.y + y});
  path.ClosePath();
  DrawSharedPath(target, color, 0.0);
}

void DrawCaption(const PaintTarget& target, const std::string& text, const Rect& rect,
                 TextAlignment alignment, ColorBGRA color, const Font* font) {
  const Rect clip = Intersection(target.clip, rect);
  if (IsEmpty(clip)) return;
  TextStyle style;
  style.color = color;
  style.clip = &clip;
  style.opacity = target.opacity;
  Labeler& labeler = SharedLabeler();
  labeler.SetFont(font != nullptr ? font : &FontDefault());
  labeler.DrawStringInRect(target.buffer, text.c_str(), rect, alignment, style);
}

int32_t MeasureCaption(const std::string& text) {
  SharedLabeler().SetFont(&FontDefault());
  return SharedLabeler().MeasureString(text.c_str(), 0);
}

Rect InsetBy(const Rect& rect, int32_t inset) {
  return {SaturatedInt(int64_t{rect.left} + inset), SaturatedInt(int64_t{rect.top} + inset),
          SaturatedInt(int64_t{rect.right} - inset), SaturatedInt(int64_t{rect.bottom} - inset)};
}

Rect CentredSquare(const Rect& rect, int32_t side) {
  const int64_t left = rect.left + (WidthOf(rect) - side) / 2;
  const int64_t top = rect.top + (HeightOf(rect) - side) / 2;
  return {SaturatedInt(left), SaturatedInt(top), SaturatedInt(left + side),
          SaturatedInt(top + side)};
}

int64_t WidthOf(const Rect& rect) {
  return int64_t{rect.right} - rect.left;
}

int64_t HeightOf(const Rect& rect) {
  return int64_t{rect.bottom} - rect.top;
}
