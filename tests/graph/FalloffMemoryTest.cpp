// Catches a hold mark that falls at another pace than the user set, falls across a jump in time, or
// goes astray on what a record or a host may hold.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "graph/FalloffMemory.h"

namespace {

constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct StepCase {
  const char* what = nullptr;
  int32_t lastRenderTime = 0;
  FrameTime time;
  RangeFalloff falloff;
  double held = 0.0;
  double raw = 0.0;
  double expected = 0.0;
};

constexpr RangeFalloff kLinear = {kFalloffLinear, 1.0};
constexpr RangeFalloff kExponential = {kFalloffExponential, 1.0};

constexpr StepCase kSteps[] = {
    {"the next frame", 100, {104, 4, 100}, kLinear, 0.5, 0.0, 0.46},
    {"exponential", 100, {104, 4, 100}, kExponential, 0.5, 0.0, 0.44353592749657838},
    {"the same frame again", 104, {104, 4, 100}, kLinear, 0.5, 0.0, 0.0},
    {"a frame left out", 100, {108, 4, 100}, kLinear, 0.5, 0.1, 0.1},
    {"raw above what is left", 100, {104, 4, 100}, kLinear, 0.5, 0.47, 0.47},
    {"instant", 100, {104, 4, 100}, {kFalloffInstant, 1.0}, 0.5, 0.0, 0.0},
    {"integrate", 100, {104, 4, 100}, {kFalloffIntegrate, 1.0}, 0.5, 0.2, 0.2},
    {"a choice that isn't there", 100, {104, 4, 100}, {-5, 1.0}, 0.5, 0.2, 0.2},
    {"a new record, first frame of a run", -1, {3, 4, 100}, kLinear, 0.0, 0.0, 0.0},
    {"falloff time 0, linear", 100, {104, 4, 100}, {kFalloffLinear, 0.0}, 1.0, 0.2, 0.2},
    {"falloff time 0, exponential", 100, {104, 4, 100}, {kFalloffExponential, 0.0}, 1.0, 0.2, 0.2},
    {"over the end of the ticks", kMax, {kMin + 3, 4, 100}, kLinear, 0.5, 0.0, 0.46},
    {"over the other end", kMin, {kMax, -1, 100}, kLinear, 0.5, 0.0, 0.51},
    {"a scale beyond int32", 100, {104, 4, 4000000000U}, kLinear, 0.5, 0.0, 0.499999999},
    {"no time scale", 100, {104, 4, 0}, kLinear, 0.5, 0.1, 0.1},
    {"no time at all", 100, {100, 0, 0}, kExponential, 0.5, 0.1, 0.1},
    {"held is no number", 100, {104, 4, 100}, kLinear, kNaN, 0.1, 0.1},
    {"held is no number, exponential", 100, {104, 4, 100}, kExponential, kNaN, 0.1, 0.1},
    {"held below 0", 100, {104, 4, 100}, kLinear, -3.0, 0.0, 0.0},
    {"held endless", 100, {104, 4, 100}, kLinear, kInfinity, 0.1, kInfinity},
    {"endless against endless", 100, {104, 4, 0}, kLinear, kInfinity, 0.1, 0.1},
    {"raw is no number", 100, {104, 4, 100}, kLinear, 0.0, kNaN, 0.0},
    {"raw below 0", 100, {200, 4, 100}, kLinear, 0.0, -1.0, 0.0},
};

TEST(FalloffMemory, OneFrame) {
  for (const StepCase& c : kSteps) {
    const FalloffMemory memory{c.lastRenderTime, {c.held, c.held, c.held}};
    const std::array raw = {c.raw, c.raw, c.raw};
    const std::array falloffs = {c.falloff, c.falloff, c.falloff};
    const FalloffMemory next =
        AdvanceFalloffMemory(memory, raw, falloffs, c.time,
                             [](double base, double exponent) { return std::pow(base, exponent); });
    EXPECT_EQ(next.lastRenderTime, c.time.currentTime) << c.what;
    for (const double held : next.heldValue) EXPECT_DOUBLE_EQ(held, c.expected) << c.what;
  }
}

}  // namespace
