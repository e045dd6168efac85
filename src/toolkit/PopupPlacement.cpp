// Puts a rectangle elsewhere with its size kept: at a point, or inside an area.
#include "toolkit/PopupPlacement.h"

#include <algorithm>
#include <limits>

#include "toolkit/RectAlgebra.h"

namespace {

using Limits = std::numeric_limits<int32_t>;

// One direction of ShiftedInto: the lower edge first, then the upper one.
int32_t ShiftedStart(int32_t low, int32_t size, int32_t boundsLow, int32_t boundsHigh) {
  return SaturatedInt(std::min(int64_t{std::max(low, boundsLow)}, int64_t{boundsHigh} - size));
}

}  // namespace

Rect MovedTo(const Rect& rect, const Point& point) {
  const Rect size = AtOrigin(rect);
  return MovedBy(size, std::min(int64_t{point.x}, int64_t{Limits::max()} - size.right),
                 std::min(int64_t{point.y}, int64_t{Limits::max()} - size.bottom));
}

Rect ShiftedInto(const Rect& rect, const Rect& bounds) {
  if (IsEmpty(bounds)) return rect;
  const Rect size = AtOrigin(rect);
  return MovedTo(rect, {ShiftedStart(rect.left, size.right, bounds.left, bounds.right),
                        ShiftedStart(rect.top, size.bottom, bounds.top, bounds.bottom)});
}
