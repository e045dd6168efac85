// Coefficients of the two-pole resonators.
#include "analysis/ResonatorTuning.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr double kPi = 3.141592654;  // ten digits; more of them would move every band
constexpr double kSecondsPerSample = 2.2675736961451248e-5;

// The filter is stable only for q < 2 / F - F / 2, which is 0.796, 0.453 and 0.186 in the three
// highest bands; above that they diverge within a few dozen samples.
double DampingOf(size_t band, double Q) {
  switch (band) {
    case 29:
      return std::min(0.79, Q);
    case 30:
      return std::min(0.45, Q);
    case 31:
      return std::min(0.18, Q);
    default:
      return Q;
  }
}

}  // namespace

ResonatorBank TuneResonators(std::span<const double, kBandCount> mask, double Q,
                             const PF_ANSICallbacks& ansi) {
  ResonatorBank bank;
  for (size_t band = 0; band < mask.size(); ++band) {
    if (mask[band] == 0.0) continue;
    const auto slot = static_cast<size_t>(bank.count);
    bank.band[slot] = static_cast<int32_t>(band);
    bank.tuning[slot] = ansi.sin(kBandFrequencies[band] * kPi * kSecondsPerSample) * 2.0;
    bank.damping[slot] = DampingOf(band, Q);
    ++bank.count;
  }
  return bank;
}
