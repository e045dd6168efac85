// Resonators in the lanes of vectors: packing, and the choice of passes.
#include "analysis/ResonatorLanes.h"

#include <algorithm>

#include "platform/FlushToZero_sse2.h"
#include "shell/ParameterTable.h"

namespace {

// The weights add up to 2, as the plain loop takes a single side twice. What it multiplies by, 0.5,
// 1 / 32768 and the damping, makes one factor, since powers of two round nothing.
FrameMix MixOf(int32_t channel, double damping) {
  constexpr double kHalfOfFullScale = 0.5 * 3.0517578125e-5;
  const double gain = kHalfOfFullScale * damping;
  if (channel == kChannelLeft) return {2, 0, gain};
  if (channel == kChannelRight) return {0, 2, gain};
  return {1, 1, gain};
}

size_t CeilDivide(size_t dividend, size_t divisor) {
  return (dividend + divisor - 1) / divisor;
}

LaneBank Pack(const ResonatorBank& bank) {
  LaneBank lanes;
  std::copy_n(bank.tuning.begin(), bank.count, lanes.tuning);
  std::copy_n(bank.damping.begin(), bank.count, lanes.damping);
  return lanes;
}

}  // namespace

void SumInLanes(const LanePasses& passes, const ResonatorBank& bank, const StereoFrames& frames,
                int32_t channel, std::array<double, kBandCount>& sums) {
  const auto count = static_cast<size_t>(bank.count);
  if (count == 0) return;
  const double q = bank.damping.front();
  const bool isOneDamping = std::all_of(bank.damping.begin(), bank.damping.begin() + bank.count,
                                        [q](double damping) { return damping == q; });
  const auto& passOf = isOneDamping ? passes.oneDamping : passes.eachDamping;
  const FrameMix mix = MixOf(channel, isOneDamping ? q : 1.0);
  const size_t vectors = CeilDivide(count, passes.lanes);
  const size_t vectorsTogether = CeilDivide(vectors, CeilDivide(vectors, kMostVectors));

  const FlushToZero flushing;
  LaneBank lanes = Pack(bank);
  for (size_t v = 0; v < vectors; v += vectorsTogether) {
    const LanePass pass = passOf[std::min(vectorsTogether, vectors - v) - 1];
    pass(lanes, v * passes.lanes, frames, mix);
  }
  std::copy_n(lanes.sum, count, sums.begin());
}
