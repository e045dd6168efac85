// The smooth line through the points of a curve.
#include "gradient/CurveChain.h"

#include <algorithm>
#include <cmath>

#include "gradient/CurvePoints.h"
#include "platform/Truncate.h"

namespace {

constexpr double kTension = 0.5;
constexpr double kTensionOfNear = 0.2;
constexpr double kNearPixels = 10.0;
// A chord of at most a pixel leaves no position out.
constexpr double kTolerance = 1.0;
constexpr int32_t kDepthLimit = 12;

// The nearest of 0.0 to `end`; 0.0 for no number.
float Held(float number, float end) {
  return std::isnan(number) ? 0.0F : std::clamp(number, 0.0F, end);
}

double Distance(const PathPoint& a, const PathPoint& b) {
  return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
}

// From `start`, as large a part of the way to `end`.
PathPoint Along(const PathPoint& start, const PathPoint& end, double part) {
  return {start.x + part * (end.x - start.x), start.y + part * (end.y - start.y)};
}

// The control points before and behind a point.
struct Handles {
  PathPoint before;
  PathPoint behind;
};

Handles HandlesOf(const PathPoint& previous, const PathPoint& point, const PathPoint& next) {
  const bool near =
      std::abs(point.x - previous.x) < kNearPixels || std::abs(next.x - point.x) < kNearPixels;
  const double tension = near ? kTensionOfNear : kTension;
  const double toPrevious = Distance(previous, point);
  const double both = toPrevious + Distance(point, next);
  const double partBefore = both > 0.0 ? tension * toPrevious / both : 0.0;
  const double partBehind = tension - partBefore;
  const PathPoint across = {previous.x - next.x, previous.y - next.y};
  return {{point.x + partBefore * across.x, point.y + partBefore * across.y},
          {point.x - partBehind * across.x, point.y - partBehind * across.y}};
}

// A quadratic curve raised to a cubic one.
Cubic Raised(const PathPoint& start, const PathPoint& control, const PathPoint& end) {
  constexpr double kPart = 2.0 / 3.0;
  return {start, Along(start, control, kPart), Along(end, control, kPart), end};
}

class SampleWriter : public Bezier3 {
 public:
  SampleWriter(float* newSamples, int32_t newHeight) : samples(newSamples), height(newHeight) {}

  void Write(const CurveChain& chain) {
    if (chain.count > 0) AddFlattenedPoint(chain.segments[0][0]);
    for (size_t i = 0; i < chain.count; ++i) Flatten(chain.segments[i], kTolerance, kDepthLimit);
  }

 protected:
  void AddFlattenedPoint(const PathPoint& point) override {
    const int32_t position = std::clamp(Truncate<int32_t>(point.x + 0.5), 0, CurvePositionEnd);
    samples[position] = ValueOfRow(static_cast<float>(point.y), height);
  }

 private:
  float* samples;
  int32_t height;
};

}  // namespace

float RowOfValue(float value, int32_t height) {
  const auto rows = static_cast<float>(std::max(height, 0));
  return rows - rows * Held(value, 1.0F);
}

float ValueOfRow(float row, int32_t height) {
  if (height < 1) return 0.0F;
  const auto rows = static_cast<float>(height);
  return Held((rows - row) / rows, 1.0F);
}

CurveChain BuildCurveChain(const CurveView& curve, int32_t height) {
  CurveChain chain;
  const auto count = static_cast<size_t>(CountPoints(curve));
  if (count < 3 || height < 1) return chain;
  std::array<PathPoint, CurvePointLimit> points;
  for (size_t i = 0; i < count; ++i) {
    points[i] = {Held(curve.pointX[i], static_cast<float>(CurvePositionEnd)),
                 RowOfValue(curve.pointY[i], height)};
  }
  std::array<Handles, CurvePointLimit> handles;
  for (size_t i = 1; i + 1 < count; ++i) {
    handles[i] = HandlesOf(points[i - 1], points[i], points[i + 1]);
  }
  chain.count = count - 1;
  const size_t last = count - 2;
  chain.segments[0] = Raised(points[0], handles[1].before, points[1]);
  for (size_t i = 1; i < last; ++i) {
    chain.segments[i] = {points[i], handles[i].behind, handles[i + 1].before, points[i + 1]};
  }
  chain.segments[last] = Raised(points[last], handles[last].behind, points[last + 1]);
  return chain;
}

void RebuildSamples(const CurveView& curve, int32_t height) {
  SampleWriter(curve.samples, height).Write(BuildCurveChain(curve, height));
}
