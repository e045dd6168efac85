// The forms of the resonator bank on a 64-bit x86 processor, and which of them it can run.
#include "analysis/ResonatorForms.h"
#include "analysis/ResonatorLanes.h"

namespace {

void SumMagnitudes_sse2(const ResonatorBank& bank, const StereoFrames& frames, int32_t channel,
                        std::array<double, kBandCount>& sums) {
  SumInLanes(kPasses_sse2, bank, frames, channel, sums);
}

void SumMagnitudes_avx2(const ResonatorBank& bank, const StereoFrames& frames, int32_t channel,
                        std::array<double, kBandCount>& sums) {
  SumInLanes(kPasses_avx2, bank, frames, channel, sums);
}

}  // namespace

std::span<const ResonatorForm> ResonatorForms() {
  static constexpr ResonatorForm kForms[] = {
      {"scalar", SumMagnitudes_scalar}, {"SSE2", SumMagnitudes_sse2}, {"AVX2", SumMagnitudes_avx2}};
  // The question takes in whether the system keeps the wide registers of a thread.
  return std::span(kForms).first(__builtin_cpu_supports("avx2") ? 3 : 2);
}
