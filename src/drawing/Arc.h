// Arcs, as chords of about two pixels.
#pragma once

#include <cstdint>

#include "drawing/PathPoint.h"

// Angle and radius go evenly from the start to the end.
struct Arc {
  PathPoint center;
  double startAngle = 0;  // radians, growing clockwise on the screen
  double sweep = 0;
  double startRadius = 0;
  double radiusGrowth = 0;
  int32_t steps = 0;  // 0 for an arc without length
};

// The arc from `start` round `center` to `end`, whichever way is shorter.
Arc MakeArc(const PathPoint& start, const PathPoint& center, const PathPoint& end);

// The end of the chord `step`, counted from 1 to arc.steps.
PathPoint PointOfArc(const Arc& arc, int32_t step);
