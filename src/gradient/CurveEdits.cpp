// What the buttons of the curve editor do to a curve.
#include "gradient/CurveEdits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "gradient/CurveChain.h"
#include "gradient/CurvePoints.h"
#include "gradient/RuntimeRandom.h"
#include "platform/Truncate.h"

namespace {

using Samples = std::array<float, CurveSampleCount>;

constexpr float kCloseEnough = 4.0F;  // sum over all samples

Samples CopyOf(const CurveView& curve) {
  Samples copy;
  std::copy_n(curve.samples, CurveSampleCount, copy.begin());
  return copy;
}

// Places points on the samples at equal distances, and writes the line through them.
void PlacePoints(const CurveView& curve, const Samples& samples, int32_t intervals,
                 int32_t height) {
  const float distance = static_cast<float>(CurveSampleCount) / static_cast<float>(intervals);
  std::copy(samples.begin(), samples.end(), curve.samples);
  ClearPoints(curve);
  for (int32_t i = 0; i <= intervals; ++i) {
    const float x = std::min(static_cast<float>(i) * distance,  // the last one would stand at 201
                             static_cast<float>(CurvePositionEnd));
    curve.pointX[i] = x;
    curve.pointY[i] = samples[Truncate<size_t>(x)];
  }
  RebuildSamples(curve, height);
}

float DifferenceBetween(const float* a, const Samples& b) {
  float sum = 0.0F;
  for (size_t i = 0; i < b.size(); ++i) sum += std::abs(a[i] - b[i]);
  return sum;
}

float RandomValue(RuntimeRandom& random) {
  return static_cast<float>((random.Draw() % 1000U) / 1000.0);
}

}  // namespace

void FitCurve(const CurveView& curve, int32_t height) {
  constexpr std::array<int32_t, 5> kIntervals = {3, 4, 6, 8, 10};
  const Samples samples = CopyOf(curve);
  int32_t best = kIntervals[0];
  float least = INFINITY;
  for (const int32_t intervals : kIntervals) {
    PlacePoints(curve, samples, intervals, height);
    const float difference = DifferenceBetween(curve.samples, samples);
    if (difference < least) {
      best = intervals;
      least = difference;
    }
    if (least < kCloseEnough) break;
  }
  PlacePoints(curve, samples, best, height);
}

void SmoothSamples(const CurveView& curve, bool strong) {
  const int32_t reach = strong ? 5 : 2;
  const float scale = strong ? 1.0F / 11.0F : 0.2F;
  const Samples samples = CopyOf(curve);
  for (int32_t i = 0; i < CurveSampleCount; ++i) {
    float sum = 0.0F;
    for (int32_t tap = i - reach; tap <= i + reach; ++tap) {
      sum += samples[static_cast<size_t>(std::clamp(tap, 0, CurvePositionEnd))];
    }
    curve.samples[i] = sum * scale;
  }
}

void RandomizeSamples(const CurveView& curve, uint32_t seed) {
  RuntimeRandom random(seed);
  std::generate_n(curve.samples, CurveSampleCount, [&random] { return RandomValue(random); });
}

void RandomizePoints(const CurveView& curve, uint32_t seed) {
  RuntimeRandom random(seed);
  ClearPoints(curve);
  const auto count = static_cast<int32_t>(random.Draw() % 5U + 4U);
  std::generate_n(curve.pointX, count, [&random] {
    return std::trunc(static_cast<float>((random.Draw() % 1000U) / 1000.0 * CurveSampleCount));
  });
  std::sort(curve.pointX, curve.pointX + count);
  std::generate_n(curve.pointY, count, [&random] { return RandomValue(random); });
  curve.pointX[count] = static_cast<float>(CurvePositionEnd);
  curve.pointY[count] = curve.pointY[count - 1];
}

void FlipSamples(const CurveView& curve) {
  std::reverse(curve.samples, curve.samples + CurveSampleCount);
}

bool IsFlatCurve(const CurveView& curve, bool freehand) {
  const float* const values = freehand ? curve.samples : curve.pointY;
  const int32_t count = freehand ? CurveSampleCount : CountPoints(curve);
  return std::all_of(values, values + count, [](float value) { return value == 0.0F; });
}
