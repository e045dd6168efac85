// Where a control lands in the picture that it is painted on.
#pragma once

#include <cstdint>

#include "drawing/Rect.h"
#include "toolkit/RectAlgebra.h"

// Logical pixels of the picture.
//
//     position - (rect.left, rect.top)
//     +--------------------------+
//     | bounds   +----------+    |
//     |          | clip     |    |  clip.left, clip.top = position
//     +----------+----------+----+
struct PaintArea {
  Rect bounds;  // of the whole control
  Rect clip;    // of the part that is to be painted
};

// localBounds     the control's, its top left at (0, 0)
// rect, position  as a control's Paint gets them
inline PaintArea AreaInBuffer(const Rect& localBounds, const Rect& rect, const Point& position) {
  const int64_t dx = int64_t{position.x} - rect.left;
  const int64_t dy = int64_t{position.y} - rect.top;
  return {MovedBy(localBounds, dx, dy), MovedBy(rect, dx, dy)};
}
