// The resonator bank in the fastest form that the processor has.
#include "analysis/ResonatorBank.h"

#include "analysis/ResonatorForms.h"

void SumMagnitudes(const ResonatorBank& bank, const StereoFrames& frames, int32_t channel,
                   std::array<double, kBandCount>& sums) {
  static const auto sumMagnitudes = ResonatorForms().back().sumMagnitudes;
  sumMagnitudes(bank, frames, channel, sums);
}
