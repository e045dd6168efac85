// Joining, cutting and moving rectangles without overflow.
#include "toolkit/RectAlgebra.h"

#include <algorithm>

Rect UnionOf(const Rect& a, const Rect& b) {
  if (IsEmpty(a)) return b;
  if (IsEmpty(b)) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

Rect ClampedInto(const Rect& rect, const Rect& limits) {
  if (IsEmpty(rect)) return rect;
  if (IsEmpty(limits)) return {};
  return {std::clamp(rect.left, limits.left, limits.right),
          std::clamp(rect.top, limits.top, limits.bottom),
          std::clamp(rect.right, limits.left, limits.right),
          std::clamp(rect.bottom, limits.top, limits.bottom)};
}

Rect MovedBy(const Rect& rect, int64_t dx, int64_t dy) {
  return {SaturatedInt(rect.left + dx), SaturatedInt(rect.top + dy), SaturatedInt(rect.right + dx),
          SaturatedInt(rect.bottom + dy)};
}

Point MovedBy(const Point& point, int64_t dx, int64_t dy) {
  return {SaturatedInt(point.x + dx), SaturatedInt(point.y + dy)};
}

Rect AtOrigin(const Rect& rect) {
  return MovedBy(rect, -int64_t{rect.left}, -int64_t{rect.top});
}

bool Contains(const Rect& rect, const Point& point) {
  return point.x >= rect.left && point.x < rect.right && point.y >= rect.top &&
         point.y < rect.bottom;
}
