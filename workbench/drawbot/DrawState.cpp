// Matrices and clips.
#include "workbench/drawbot/DrawState.h"

#include <algorithm>
#include <cmath>

namespace {

// Far outside of any surface, and far inside of what an int holds.
int AsCoordinate(double value) {
  constexpr double kFarthest = 1e9;
  return static_cast<int>(std::clamp(value, -kFarthest, kFarthest));
}

}  // namespace

DrawPoint DrawMatrix::Apply(const DrawPoint& point) const {
  return {xx * point.x + xy * point.y + x0, yx * point.x + yy * point.y + y0};
}

DrawMatrix DrawMatrix::After(const DrawMatrix& first) const {
  return {xx * first.xx + xy * first.yx,      xx * first.xy + xy * first.yy,
          xx * first.x0 + xy * first.y0 + x0, yx * first.xx + yy * first.yx,
          yx * first.xy + yy * first.yy,      yx * first.x0 + yy * first.y0 + y0};
}

bool DrawMatrix::IsRegular() const {
  const double area = xx * yy - xy * yx;
  return std::isfinite(area) && std::isfinite(1.0 / area) && std::isfinite(x0 + y0);
}

DrawMatrix FromHost(const DRAWBOT_MatrixF32& matrix) {
  const auto& m = matrix.mat;
  return {m[0][0], m[1][0], m[2][0], m[0][1], m[1][1], m[2][1]};
}

void DrawState::Clip(const DRAWBOT_Rect32& rect) {
  const double right = static_cast<double>(rect.left) + rect.width;
  const double bottom = static_cast<double>(rect.top) + rect.height;
  const double left = rect.left;
  const double top = rect.top;
  const DrawPoint corners[] = {matrix.Apply({left, top}), matrix.Apply({right, top}),
                               matrix.Apply({left, bottom}), matrix.Apply({right, bottom})};
  const auto [minX, maxX] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
  const auto [minY, maxY] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
  clip.left = std::max(clip.left, minX);
  clip.top = std::max(clip.top, minY);
  clip.right = std::min(clip.right, maxX);
  clip.bottom = std::min(clip.bottom, maxY);
}

DRAWBOT_Rect32 DrawState::ClipBounds() const {
  const int left = AsCoordinate(std::floor(clip.left));
  const int top = AsCoordinate(std::floor(clip.top));
  const int right = AsCoordinate(std::ceil(clip.right));
  const int bottom = AsCoordinate(std::ceil(clip.bottom));
  return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}
