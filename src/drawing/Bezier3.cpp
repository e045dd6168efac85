// Halving cubic curves until their chords will do.
#include "drawing/Bezier3.h"

#include <algorithm>
#include <cmath>

namespace {

PathPoint Middle(const PathPoint& a, const PathPoint& b) {
  return {(a.x + b.x) * 0.5, (a.y + b.y) * 0.5};
}

}  // namespace

void Bezier3::Flatten(const Cubic& curve, double tolerance, int32_t depthLimit) {
  FlattenSegment(curve, tolerance, depthLimit);
}

void Bezier3::FlattenSegment(const Cubic& segment, double tolerance, int32_t depthLeft) {
  const double extent =
      std::max(std::abs(segment[3].x - segment[0].x), std::abs(segment[3].y - segment[0].y));
  if (extent <= tolerance || depthLeft <= 0) {
    AddFlattenedPoint(segment[3]);
    return;
  }
  Cubic first;
  Cubic second;
  SplitAtHalf(segment, first, second);
  FlattenSegment(first, tolerance, depthLeft - 1);
  FlattenSegment(second, tolerance, depthLeft - 1);
}

void Bezier3::SplitAtHalf(const Cubic& whole, Cubic& first, Cubic& second) const {
  const PathPoint middle = Middle(whole[1], whole[2]);
  first[0] = whole[0];
  first[1] = Middle(whole[0], whole[1]);
  first[2] = Middle(first[1], middle);
  second[3] = whole[3];
  second[2] = Middle(whole[2], whole[3]);
  second[1] = Middle(middle, second[2]);
  first[3] = Middle(first[2], second[1]);
  second[0] = first[3];
}
