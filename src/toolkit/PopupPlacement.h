// Puts a rectangle elsewhere with its size kept: at a point, or inside an area.
#pragma once

#include "drawing/Rect.h"

// A rectangle of the size of `rect` with its top left at `point`. Where that would leave the
// coordinates of an int32 it is moved back, and a size beyond an int32 is cut.
Rect MovedTo(const Rect& rect, const Point& point);

// Moves `rect` until it lies inside `bounds`: by its left edge, then its top, right and bottom
// edges. So where it doesn't fit, its right and bottom edges are those of the bounds. Empty bounds
// leave it where it is.
Rect ShiftedInto(const Rect& rect, const Rect& bounds);
