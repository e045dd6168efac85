// One value out of the bands that a range covers.
#include "analysis/RangeEvaluation.h"

#include <algorithm>
#include <cstddef>

#include "shell/ParameterTable.h"
#include "shell/ParameterValue.h"

namespace {

// NaN becomes 0.0.
double HoldToUnit(double value) {
  return value > 0.0 ? std::min(value, 1.0) : 0.0;
}

// How far a level reaches into the window: 0.0 at or below it, 1.0 at or above. A window without
// height is passed or not.
double Reach(double level, const LevelWindow& window, double height) {
  if (height > 0.0) return HoldToUnit((level - window.lowerLevel) / height);
  return level >= window.lowerLevel ? 1.0 : 0.0;
}

double RangeValue(std::span<const double, kBandCount> levels, const BandRun& run,
                  const LevelWindow& window, int32_t type) {
  const double height = window.upperLevel - window.lowerLevel;
  double value = 0.0;
  for (int32_t band = run.firstBand; band <= run.lastBand; ++band) {
    const double m = Reach(HoldToUnit(levels[static_cast<size_t>(band)]), window, height);
    value = type == kTypePeak ? std::max(value, m) : value + m;
  }
  // The window decides, not the type: a flat rectangle is a trigger too.
  if (!(height > 0.0)) return value >= 1.0 ? 1.0 : 0.0;
  return type == kTypeAverage ? value / (run.lastBand - run.firstBand + 1) : value;
}

}  // namespace

void EvaluateRanges(const PF_InData* /*in_data*/, const PF_ParamDef* const* params,
                    std::span<const double, kBandCount> levels,
                    std::span<double, kRangeCount> values, int32_t w, int32_t h,
                    const RangeGeometry* geometry) {
  RangeGeometry ownGeometry;
  if (geometry == nullptr) {
    ComputeRangeGeometry(params, w, h, ownGeometry);
    geometry = &ownGeometry;
  }
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const auto slot = static_cast<size_t>(range);
    const BandRun& run = geometry->bands[slot];
    values[slot] = 0.0;
    if (!IsRangeActive(params, range) || !LiesInBank(run)) continue;
    values[slot] = RangeValue(levels, run, geometry->levels[slot],
                              PopupChoice(params, RangeParameter(range, kRangeType)));
  }
}
