// Catches windows that lose or repeat frames at block borders, or read outside the sound.
#include "workbench/audio/AudioClip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

namespace {

constexpr int64_t kLowest = std::numeric_limits<int64_t>::min();
constexpr int64_t kHighest = std::numeric_limits<int64_t>::max();
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

// The window, with a guard value behind it.
std::vector<int16_t> Window(const AudioClip& clip, int64_t first, int32_t count) {
  std::vector<int16_t> window(2 * static_cast<size_t>(std::max(count, 0)) + 2, kGuard);
  clip.CopyFrames(first, count, window.data());
  return window;
}

std::vector<int16_t> PlainWindow(const std::vector<int16_t>& samples, int64_t first,
                                 int32_t count) {
  std::vector<int16_t> window;
  // Without a sign, so that the distance of the furthest frame from the sound has room.
  const uint64_t before = first < 0 ? 0 - static_cast<uint64_t>(first) : 0;
  for (int64_t i = 0; i < count; ++i) {
    const bool isBefore = static_cast<uint64_t>(i) < before;
    const bool isInside = !isBefore && 2 * (first + i) < static_cast<int64_t>(samples.size());
    for (int64_t side = 0; side < 2; ++side)
      window.push_back(isInside ? samples[static_cast<size_t>(2 * (first + i) + side)]
                                : int16_t{0});
  }
  window.insert(window.end(), {kGuard, kGuard});
  return window;
}

TEST(AudioClip, EveryWindowHoldsTheSoundsFramesAndSilenceAroundThem) {
  const std::vector<int16_t> samples = LongSound();
  const AudioClip clip = ClipOf(samples);
  ASSERT_EQ(clip.FrameCount(), 262144 + 77);
  const int64_t end = clip.FrameCount();
  for (const int64_t first :
       {int64_t{0}, int64_t{-1}, int64_t{-6614}, int64_t{-6615}, int64_t{-6616}, int64_t{65535},
        int64_t{65536}, int64_t{131071}, int64_t{131072}, end - 6615, end - 1, end, end + 1,
        kLowest, kLowest + 6615})
    for (const int32_t count : {-1, 0, 1, 2, 6615, 140000})
      EXPECT_TRUE(Window(clip, first, count) == PlainWindow(samples, first, count))
          << count << " frames from " << first;
  EXPECT_TRUE(Window(clip, kHighest, 6615) == PlainWindow({}, 0, 6615));
  EXPECT_TRUE(Window(AudioClip(), -3, 6) == PlainWindow({}, 0, 6));
}

TEST(AudioClip, AWindowIsItsTwoHalvesInARow) {
  const AudioClip clip = ClipOf(LongSound());
  std::mt19937 random(11);
  for (int i = 0; i < 200; ++i) {
    const int64_t first = static_cast<int64_t>(random() % 300000) - 10000;
    const auto count = static_cast<int32_t>(random() % 70000);
    const auto half = static_cast<int32_t>(random() % static_cast<uint32_t>(count + 1));
    std::vector<int16_t> halves = Window(clip, first, half);
    halves.resize(halves.size() - 2);
    const std::vector<int16_t> rest = Window(clip, first + half, count - half);
    halves.insert(halves.end(), rest.begin(), rest.end());
    EXPECT_TRUE(Window(clip, first, count) == halves)
        << count << " frames from " << first << " cut at " << half;
  }
}

}  // namespace
