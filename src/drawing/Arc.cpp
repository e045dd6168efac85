// Angles, radii and points of arcs.
#include "drawing/Arc.h"

#include <algorithm>
#include <cmath>

#include "platform/Truncate.h"

namespace {

constexpr double kHalfTurn = 3.14159265358979;
constexpr double kFullTurn = 6.28318530717958;

// A full circle reaches this at a radius of 20,000 pixels; even at 100 million the chords are
// within an eighth of a pixel then, the finest that a sample tells. Without an end a single arc
// could ask for 2^31 chords.
constexpr int32_t kMostSteps = 65536;

double RadiusOf(const PathPoint& center, const PathPoint& point) {
  const double x = point.x - center.x;
  const double y = point.y - center.y;
  return std::sqrt(x * x + y * y);
}

double AngleOf(const PathPoint& center, const PathPoint& point) {
  return std::atan2(point.y - center.y, point.x - center.x);
}

}  // namespace

Arc MakeArc(const PathPoint& start, const PathPoint& center, const PathPoint& end) {
  Arc arc;
  arc.center = center;
  arc.startAngle = AngleOf(center, start);
  arc.sweep = AngleOf(center, end) - arc.startAngle;
  if (arc.sweep > kHalfTurn) arc.sweep -= kFullTurn;
  if (arc.sweep < -kHalfTurn) arc.sweep += kFullTurn;
  arc.startRadius = RadiusOf(center, start);
  const double endRadius = RadiusOf(center, end);
  arc.radiusGrowth = endRadius - arc.startRadius;
  const float radius = std::max(static_cast<float>(arc.startRadius), static_cast<float>(endRadius));
  const auto steps = Truncate<int32_t>(std::abs(radius * arc.sweep) * 0.5 + 0.5);
  arc.steps = std::min(steps, kMostSteps);
  return arc;
}

PathPoint PointOfArc(const Arc& arc, int32_t step) {
  const double angle = arc.startAngle + step * arc.sweep / arc.steps;
  const double radius = arc.startRadius + step * arc.radiusGrowth / arc.steps;
  return {arc.center.x + std::cos(angle) * radius, arc.center.y + std::sin(angle) * radius};
}
