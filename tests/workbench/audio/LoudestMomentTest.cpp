// Catches a loudest moment that lies beside the loudest sound, or behind the first of several.
#include "workbench/audio/LoudestMoment.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace {

constexpr int64_t kHop = 441;

// Silence, but for 150 ms from each given hop on, with every sample at the given level.
AudioClip ClipWithBursts(int64_t frames, const std::vector<std::pair<int64_t, int16_t>>& bursts) {
  std::vector<int16_t> samples(static_cast<size_t>(frames) * kClipChannels);
  for (const auto& [hop, level] : bursts) {
    for (int64_t i = hop * kHop; i < (hop + 15) * kHop && i < frames; ++i) {
      // The loud side is the right one: a left-only or a mixed sum would miss it.
      samples[static_cast<size_t>(i) * 2 + 1] = static_cast<int16_t>(i % 2 == 0 ? level : -level);
    }
  }
  AudioClipBuilder builder;
  builder.Append(samples.data(), frames);
  return builder.Finish();
}

TEST(LoudestMoment, IsTheMiddleOfTheFirstLoudestWindow) {
  constexpr int16_t kFull = std::numeric_limits<int16_t>::max();
  struct Case {
    const char* what;
    int64_t frames;
    std::vector<std::pair<int64_t, int16_t>> bursts;
    double seconds;
  };
  const Case cases[] = {
      {"the second is louder", 441000, {{100, 9000}, {300, 9001}}, 3.075},
      {"both are equal", 441000, {{100, 9000}, {300, 9000}}, 1.075},
      {"at the very start", 441000, {{0, kFull}, {985, 5}}, 0.075},
      {"at the very end", 441000, {{985, kFull}}, 9.925},
      {"the rest of a hop counts for nothing", 985 * kHop + 440, {{985, kFull}, {50, 3}}, 0.575},
      {"silence", 441000, {}, 0.075},
      {"shorter than a window", 100, {{0, kFull}}, 0.075},
      {"empty", 0, {}, 0.075},
  };
  for (const Case& c : cases) {
    EXPECT_DOUBLE_EQ(LoudestMoment(ClipWithBursts(c.frames, c.bursts)), c.seconds) << c.what;
  }
}

}  // namespace
