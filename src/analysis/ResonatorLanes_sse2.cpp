// Resonators in the lanes of vectors: packing, the samples as doubles, block after block.
#include "analysis/ResonatorLanes.h"

#include <algorithm>

#include "platform/FlushToZero_sse2.h"
#include "shell/ParameterTable.h"

namespace {

// Turns each frame into a sample. In the plain loop's terms `factor` times (left + right) is
// x * 3.0517578125e-5 * q: the two powers of two round nothing, so they may go first.
void ConvertFrames(const int16_t* frames, size_t count, int32_t channel, double factor,
                   double* samples) {
  constexpr double kHalfOfFullScale = 0.5 * 3.0517578125e-5;
  const ptrdiff_t first = channel == kChannelRight ? 1 : 0;
  const ptrdiff_t second = channel == kChannelLeft ? 0 : 1;
  for (size_t i = 0; i < count; ++i) {
    const int16_t* const frame = frames + 2 * i;
    samples[i] = (frame[first] + frame[second]) * kHalfOfFullScale * factor;
  }
}

size_t CeilDivide(size_t dividend, size_t divisor) {
  return (dividend + divisor - 1) / divisor;
}

LaneState Pack(const ResonatorBank& bank) {
  LaneState state;
  std::copy_n(bank.tuning.begin(), bank.count, state.tuning);
  std::copy_n(bank.damping.begin(), bank.count, state.damping);
  return state;
}

}  // namespace

void SumInLanes(const LanePasses& passes, const ResonatorBank& bank, const StereoFrames& frames,
                int32_t channel, std::array<double, kBandCount>& sums) {
  const auto count = static_cast<size_t>(bank.count);
  if (count == 0) return;
  const auto last = bank.damping.begin() + bank.count;
  const bool isOneDamping =
      std::all_of(bank.damping.begin(), last, [&](double q) { return q == bank.damping.front(); });
  const auto& passOf = isOneDamping ? passes.oneDamping : passes.eachDamping;
  const double factor = isOneDamping ? bank.damping.front() : 1.0;

  const size_t vectors = CeilDivide(count, passes.lanes);
  const size_t vectorsTogether = CeilDivide(vectors, CeilDivide(vectors, kMostVectors));

  const FlushToZero flushing;
  LaneState state = Pack(bank);
  const auto end = static_cast<size_t>(frames.count);
  for (size_t begin = 0; begin < end; begin += kLaneBlockFrames) {
    double samples[kLaneBlockFrames];
    const size_t length = std::min(kLaneBlockFrames, end - begin);
    ConvertFrames(frames.samples + 2 * begin, length, channel, factor, samples);
    for (size_t v = 0; v < vectors; v += vectorsTogether) {
      const LanePass pass = passOf[std::min(vectorsTogether, vectors - v) - 1];
      pass(state, v * passes.lanes, samples, length);
    }
  }
  std::copy_n(state.sum, count, sums.begin());
}
