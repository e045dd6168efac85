// Cubic Bezier curves, as chords that are short enough.
#pragma once

#include <array>
#include <cstdint>

#include "drawing/PathPoint.h"

// Start, two control points, end.
using Cubic = std::array<PathPoint, 4>;

// Whoever derives gets the ends of the chords one by one; the curve's own start isn't among them.
class Bezier3 {
 public:
  Bezier3() = default;
  Bezier3(const Bezier3&) = delete;
  Bezier3& operator=(const Bezier3&) = delete;

  // Halves the curve until a chord spans at most `tolerance` pixels in x and in y, or until it has
  // been halved `depthLimit` times. How far the curve bulges from its chord isn't looked at.
  virtual void Flatten(const Cubic& curve, double tolerance, int32_t depthLimit);

 protected:
  virtual void FlattenSegment(const Cubic& segment, double tolerance, int32_t depthLeft);
  virtual void SplitAtHalf(const Cubic& whole, Cubic& first, Cubic& second) const;
  virtual void AddFlattenedPoint(const PathPoint& point) = 0;

 public:
  virtual ~Bezier3() = default;
};
