// Joining and cutting the areas of controls.
#pragma once

#include <cstdint>

#include "drawing/Rect.h"
#include "platform/SaturatedInt.h"

// The smallest rectangle round both. An empty a gives b, whatever b is; an empty b gives a.
Rect UnionOf(const Rect& a, const Rect& b);

// Each edge held to the limits: beside Intersection, what lies outside becomes an empty rectangle
// at the nearest edge. An empty rectangle stays as it is; empty limits make it all zero.
Rect ClampedInto(const Rect& rect, const Rect& limits);

// The rectangle moved; edges beyond what an int32 holds stop there.
Rect MovedBy(const Rect& rect, int64_t dx, int64_t dy);
Point MovedBy(const Point& point, int64_t dx, int64_t dy);

// The same size with the top left at (0, 0); a side longer than an int32 holds is cut there.
Rect AtOrigin(const Rect& rect);

// Whether the point is inside, right and bottom excluded.
bool Contains(const Rect& rect, const Point& point);
