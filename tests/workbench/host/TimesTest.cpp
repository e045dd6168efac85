// Catches keyframes lost or out of order in a second run, and layers a tick off before time 0.
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>

#include "workbench/host/Comp.h"
#include "workbench/host/KeyframeStream.h"

namespace {

TEST(KeyframeStream, HoldsWhatAMapByTimeHolds) {
  constexpr unsigned kSeed = 5;
  std::mt19937 random(kSeed);
  constexpr int32_t kScales[] = {1, 24, 30, 60, 720};  // each divides 720
  KeyframeStream stream;
  std::map<int32_t, double> expected;  // by 720ths of a second
  for (int round = 0; round < 60; ++round) {
    std::vector<Keyframe> added(random() % 12);
    for (Keyframe& keyframe : added) {
      const int32_t scale = kScales[random() % std::size(kScales)];
      const int32_t tick = static_cast<int32_t>(random() % 90) - 45;
      keyframe = {{tick, static_cast<A_u_long>(scale)}, static_cast<double>(random())};
      expected[tick * (720 / scale)] = keyframe.value;
    }
    stream.Set(added);
    std::vector<std::pair<const int32_t, double>> held;
    for (const auto& [time, value] : stream.Keyframes()) {
      held.emplace_back(time.value * (720 / static_cast<int32_t>(time.scale)), value);
    }
    ASSERT_TRUE(std::equal(held.begin(), held.end(), expected.begin(), expected.end()))
        << "seed " << kSeed << ", round " << round;
  }
}

TEST(LayerTime, IsCompTimeLessTheLayersStartRoundedDown) {
  constexpr A_long kLastTick = std::numeric_limits<A_long>::max();
  // On a layer that starts at tick 10 of 30 a second.
  constexpr std::pair<A_Time, A_long> kCases[] = {{{40, 30}, 30},
                                                  {{-1, 1}, -40},
                                                  {{1, 60}, -10},
                                                  {{-1, 60}, -11},
                                                  {{1001, 24000}, -9},
                                                  {{-1001, 24000}, -12},
                                                  {{kLastTick, 4294967295U}, 4},
                                                  {{-kLastTick, 30}, -kLastTick - 1},
                                                  {{kLastTick, 1}, kLastTick}};
  Comp comp;
  Layer& layer = comp.AddLayer("layer", nullptr);
  layer.startTick = 10;
  for (const auto& [compTime, layerTick] : kCases) {
    const A_Time layerTime = CompToLayerTime(layer, compTime);
    EXPECT_EQ(layerTime.value, layerTick) << compTime.value << '/' << compTime.scale;
    EXPECT_EQ(layerTime.scale, 30U);
  }
  for (A_long tick = -50; tick <= 50; ++tick) {
    EXPECT_EQ(LayerToCompTime(layer, CompToLayerTime(layer, {tick, 30})).value, tick);
  }
}

}  // namespace
