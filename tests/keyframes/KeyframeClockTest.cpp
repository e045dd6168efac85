// Catches clocks whose ticks overflow, run backwards, or divide by a step of 0.
#include "keyframes/KeyframeClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct SpanCase {
  const char* what;
  double rate;
  A_Time start, end;
  int32_t startTick, endTick;
  int64_t count;
};

TEST(KeyframeClock, TruncatesBothEndsTowardZeroAndRoundsTheCountUp) {
  constexpr SpanCase kCases[] = {
      {"whole", 30.0, {0, 30}, {60, 30}, 0, 6000, 60},
      {"shorter than a step", 30.0, {1, 30}, {4, 120}, 100, 100, 0},
      {"a step and a bit", 10.0, {0, 1}, {101, 1000}, 0, 101, 2},
      {"negative", 10.0, {-15, 10000}, {1, 1}, -1, 1000, 11},
      {"reversed", 10.0, {2, 1}, {1, 1}, 2000, 1000, 0},
      {"thirds", 30000.0 / 1001.0, {1001, 30000}, {2002, 30000}, 99, 199, 2},
      {"scale 0", 30.0, {1, 0}, {0, 0}, INT32_MAX, 0, 0},
      {"all of time", 200.0, {INT32_MIN, 1}, {INT32_MAX, 1}, INT32_MIN, INT32_MAX, 42949673},
  };
  for (const SpanCase& c : kCases) {
    const auto clock = MakeKeyframeClock(c.rate, c.start, c.end);
    ASSERT_TRUE(clock) << c.what;
    EXPECT_EQ(clock->startTick, c.startTick) << c.what;
    EXPECT_EQ(clock->endTick, c.endTick) << c.what;
    EXPECT_EQ(KeyframeCount(*clock), c.count) << c.what;
  }
}

TEST(KeyframeClock, NeedsARateThatGivesTicksAndAStep) {
  for (const double rate : {0.0, 0.00999, -30.0, kInfinity, -kInfinity, std::nan("")}) {
    EXPECT_FALSE(MakeKeyframeClock(rate, {0, 1}, {1, 1})) << rate;
  }
  for (const double rate : {0.01, 0.5, 200.0, 1e9}) {
    EXPECT_TRUE(MakeKeyframeClock(rate, {0, 1}, {1, 1})) << rate;
  }
}

}  // namespace
