// Catches windows that lose or repeat frames at block borders, or read outside the sound.
#include "workbench/audio/AudioClip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

namespace {

constexpr int64_t kFar = 1'000'000'000;
constexpr int16_t kGuard = 0x5A5A;

// Several blocks and a bit; no sample is 0.
std::vector<int16_t> LongSound() {
  std::vector<int16_t> samples(size_t{2} * (262144 + 77));
  std::mt19937 random(7);
  for (int16_t& sample : samples) sample = static_cast<int16_t>(random() | 1U);
  return samples;
}

AudioClip ClipOf(const std::vector<int16_t>& samples) {
  AudioClipBuilder builder;
  const auto frames = static_cast<int64_t>(samples.size() / 2);
  // Pieces that grow from nothing to several blocks.
  for (int64_t first = 0, size = 0; first < frames; first += size, size = size * 3 + 1)
    builder.Append(samples.data() + 2 * first, std::min(size, frames - first));
  return builder.Finish();
}

// Compares a window, and a guard value behind it, with one picked sample by sample.
void ExpectPlainWindow(const AudioClip& clip, const std::vector<int16_t>& samples, int64_t first,
                       int32_t count) {
  std::vector<int16_t> window(2 * static_cast<size_t>(std::max(count, 0)) + 2, kGuard);
  std::vector<int16_t> expected = window;
  for (size_t i = 0; i + 2 < window.size(); ++i) {
    // Without a sign it wraps around before the sound and behind it.
    const size_t sample = 2 * static_cast<size_t>(first) + i;
    const bool isFar = first > kFar || first < -kFar;
    expected[i] = !isFar && sample < samples.size() ? samples[sample] : int16_t{0};
  }
  clip.CopyFrames(first, count, window.data());
  EXPECT_TRUE(window == expected) << count << " frames from " << first;
}

TEST(AudioClip, EveryWindowHoldsTheSoundsFramesAndSilenceAroundThem) {
  const std::vector<int16_t> samples = LongSound();
  const AudioClip clip = ClipOf(samples);
  const int64_t end = clip.FrameCount();
  ASSERT_EQ(end, 262144 + 77);
  constexpr auto kLowest = std::numeric_limits<int64_t>::min();
  constexpr auto kHighest = std::numeric_limits<int64_t>::max();
  for (const int64_t first : {int64_t{0}, int64_t{-1}, int64_t{-6615}, int64_t{65535},
                              int64_t{131072}, end - 6615, end - 1, end, kLowest, kHighest})
    for (const int32_t count : {-1, 0, 1, 2, 6615, 6616, 140000})
      ExpectPlainWindow(clip, samples, first, count);
  ExpectPlainWindow(AudioClip(), {}, -3, 6);
}

}  // namespace
