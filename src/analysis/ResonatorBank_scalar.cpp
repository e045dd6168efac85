// The resonator bank as a plain loop, one resonator after the other.
#include <cmath>
#include <cstddef>

#include "analysis/ResonatorForms.h"
#include "shell/ParameterTable.h"

void SumMagnitudes_scalar(const ResonatorBank& bank, const StereoFrames& frames, int32_t channel,
                          std::array<double, kBandCount>& sums) {
  // One side alone is taken twice: (left + left) x 0.5 is left to the bit, so all channels share
  // one loop. The sum is an integer and holds two samples of -32768.
  const ptrdiff_t first = channel == kChannelRight ? 1 : 0;
  const ptrdiff_t second = channel == kChannelLeft ? 0 : 1;
  const int16_t* const samples = frames.samples;
  const ptrdiff_t end = ptrdiff_t{2} * frames.count;

  for (size_t resonator = 0; resonator < static_cast<size_t>(bank.count); ++resonator) {
    const double F = bank.tuning[resonator];
    const double q = bank.damping[resonator];
    double low = 0.0;
    double band = 0.0;
    double sum = 0.0;
    for (ptrdiff_t i = 0; i < end; i += 2) {
      const double x = (samples[i + first] + samples[i + second]) * 0.5;
      low = low + band * F;
      const double high = x * 3.0517578125e-5 * q - low - band * q;
      band = band + high * F;
      // The host's fabs would be a call for each sample; a magnitude has one result only.
      sum = sum + std::fabs(band);
    }
    sums[resonator] = sum;
  }
}
