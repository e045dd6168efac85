// Sums of squares over a sliding window.
#include "workbench/audio/LoudestMoment.h"

#include <array>

namespace {

constexpr int32_t kHopFrames = kClipSampleRateHz / 100;
constexpr int64_t kHopsPerWindow = 15;

int64_t SumOfSquares(const AudioClip& clip, int64_t hop) {
  std::array<int16_t, size_t{kHopFrames} * kClipChannels> samples{};
  clip.CopyFrames(hop * kHopFrames, kHopFrames, samples.data());
  int64_t sum = 0;
  for (const int16_t sample : samples) sum += int64_t{sample} * sample;
  return sum;
}

}  // namespace

double LoudestMoment(const AudioClip& clip) {
  const int64_t hops = clip.FrameCount() / kHopFrames;
  std::array<int64_t, kHopsPerWindow> squares{};  // of the last hops, in a ring
  int64_t energy = 0;
  int64_t largest = -1;
  int64_t loudestHop = 0;
  for (int64_t hop = 0; hop < hops; ++hop) {
    int64_t& slot = squares[static_cast<size_t>(hop % kHopsPerWindow)];
    const int64_t added = SumOfSquares(clip, hop);
    energy += added - slot;
    slot = added;
    const int64_t first = hop - kHopsPerWindow + 1;
    if (first < 0 || energy <= largest) continue;
    largest = energy;
    loudestHop = first;
  }
  const double middleHop = static_cast<double>(loudestHop) + kHopsPerWindow / 2.0;
  return middleHop * kHopFrames / kClipSampleRateHz;
}
