// The way back along a polygon's own outline.
#include "drawing/Stroke.h"

#include <cmath>
#include <cstddef>

#include "drawing/PathPoint.h"

namespace {

// The polygon's corner in pixels.
PathPoint CornerOf(const Polygon& polygon, size_t index, int32_t samples) {
  const Point& corner = polygon[index];
  return {static_cast<double>(corner.x) / samples, static_cast<double>(corner.y) / samples};
}

}  // namespace

void BuildStroke(Polygon& polygon, double lineWidth, int32_t samples) {
  const size_t count = polygon.Count();
  if (count == 0) return;
  for (size_t i = count - 1; i > 0; --i) {
    const PathPoint later = CornerOf(polygon, i, samples);
    const PathPoint earlier = CornerOf(polygon, i - 1, samples);
    const double x = earlier.x - later.x;
    const double y = earlier.y - later.y;
    const double length = std::sqrt(x * x + y * y);
    if (!(length > 0)) continue;
    const double normalX = -y / length * lineWidth;
    const double normalY = x / length * lineWidth;
    polygon.Add(later.x - normalX, later.y - normalY, samples);
    polygon.Add(earlier.x - normalX, earlier.y - normalY, samples);
  }
  const PathPoint first = CornerOf(polygon, 0, samples);
  polygon.Add(first.x, first.y, samples);
}
