// Lines of a width: the outline of a polygon becomes a band.
#pragma once

#include <cstdint>

#include "drawing/Polygon.h"

// Lets the polygon go back to its start along a line `lineWidth` pixels to the right of where it
// went, as seen by who walks along it. A clockwise shape gets a band within its own outline, a line
// of two points one on a single side. A negative width lays the band on the other side.
//
//   start 0 ------------> 1           corners get no joins: the way back goes from the end of
//         4 <------------ 3           one segment's band straight to the next one's
void BuildStroke(Polygon& polygon, double lineWidth, int32_t samples);
