// Catches keyframes at the wrong times, on the wrong slider, or that don't follow the sound.
#include <algorithm>
#include <iterator>

#include "Instance.h"

namespace {

// A range over the whole height of band 15, where the pulses sound.
void CoverPulses(Instance& instance, int range) {
  const std::string group = "Range " + std::to_string(range);
  instance.Set(group + "/Active", "on");
  instance.Set(group + " Corner 1", "740,108");
  instance.Set(group + " Corner 2", "760,972");
}

double SecondsOf(const Keyframe& key) {
  return static_cast<double>(key.time.value) / key.time.scale;
}

TEST(Apply, FollowsTheSound) {
  Instance instance;
  instance.SetUpSequence();
  CoverPulses(instance, 1);
  ExpectClean(instance.PressAndRelease());
  ASSERT_EQ(instance.Output(1).size(), 90U);
  for (const Keyframe& key : instance.Output(1)) {
    const double phase = SecondsOf(key) - std::floor(SecondsOf(key));
    if (phase > 0.08 && phase < 0.42) {
      EXPECT_EQ(key.value, 100.0) << SecondsOf(key);
    }
    if (phase > 0.58 && phase < 0.92) {
      EXPECT_EQ(key.value, 0.0) << SecondsOf(key);
    }
  }
}

struct RateCase {
  const char* what;
  uint32_t timeScale;
  int32_t timeStep;
  const char* ownRate;  // null: the comp's
  uint32_t scale;
  int32_t step;
};

TEST(Apply, SetsItsClockByTheRate) {
  constexpr RateCase kCases[] = {
      {"30", 30, 1, nullptr, 3000, 100},
      {"25 in small ticks", 25000, 1000, nullptr, 2500, 100},
      {"29.97", 30000, 1001, nullptr, 2997, 99},
      {"23.976", 24000, 1001, nullptr, 2397, 99},
      {"own rate of 10", 30, 1, "10", 1000, 100},
      {"own rate of 1", 30, 1, "1", 100, 100},
      {"the slowest", 1, 100, nullptr, 1, 100},
  };
  for (const RateCase& c : kCases) {
    Instance instance;
    instance.comp.timeScale = c.timeScale;
    instance.comp.timeStep = c.timeStep;
    instance.comp.workAreaDuration = static_cast<int32_t>(3 * c.timeScale);
    instance.SetUpSequence();
    if (c.ownRate != nullptr) {
      instance.Set("Use Comp fps", "off");
      instance.Set("Keyframes per Second", c.ownRate);
    }
    ExpectClean(instance.PressAndRelease());
    const std::vector<Keyframe>& keys = instance.Output(1);
    const auto count =
        (3 * c.scale + static_cast<uint32_t>(c.step) - 1) / static_cast<uint32_t>(c.step);
    ASSERT_EQ(keys.size(), count) << c.what;
    for (size_t i = 0; i < keys.size(); ++i) {
      EXPECT_EQ(keys[i].time.scale, c.scale) << c.what;
      EXPECT_EQ(keys[i].time.value, static_cast<int32_t>(i) * c.step) << c.what;
    }
  }
}

TEST(Apply, TurnsAwayARateThatGivesNoStep) {
  constexpr std::pair<uint32_t, int32_t> kRates[] = {{30, 0}, {30, -1}, {1, 101}, {1, 2000000000}};
  for (const auto& [scale, step] : kRates) {
    Instance instance(0.2);
    instance.comp.timeScale = scale;
    instance.comp.timeStep = step;
    instance.SetUpSequence();
    const CommandResult result = instance.PressAndRelease();
    EXPECT_EQ(result.error, PF_Err_NONE);
    EXPECT_TRUE(result.ShowsMessage());
    EXPECT_NE(result.message.find("rate"), std::string::npos) << result.message;
    EXPECT_TRUE(result.broken.empty());
    EXPECT_TRUE(instance.Output(1).empty());
  }
}

TEST(Apply, WritesActiveRangesAloneEachOnItsOwnSlider) {
  for (int alone = 1; alone <= 3; ++alone) {
    Instance instance(0.3);
    instance.SetUpSequence();
    instance.Set("Range 1/Active", "off");
    CoverPulses(instance, alone);
    ExpectClean(instance.PressAndRelease());
    for (int range = 1; range <= 3; ++range) {
      EXPECT_EQ(instance.Output(range).size(), range == alone ? 9U : 0U) << alone;
    }
    EXPECT_EQ(instance.Output(alone)[5].value, 100.0) << "its own bands are heard";
  }
}

TEST(Apply, CountsTimeInTheLayerAndReachesBeforeIt) {
  Instance late;
  late.layer.startTick = 30;
  late.SetUpSequence();
  ExpectClean(late.PressAndRelease());
  Instance plain;
  plain.SetUpSequence();
  ExpectClean(plain.PressAndRelease());
  ASSERT_EQ(late.Output(1).size(), 90U);
  EXPECT_EQ(late.Output(1).front().time.value, -3000);
  for (size_t i = 0; i < 60; ++i) {
    EXPECT_EQ(late.Output(1)[i + 30].time.value, plain.Output(1)[i].time.value);
    EXPECT_EQ(late.Output(1)[i + 30].value, plain.Output(1)[i].value);
  }
  EXPECT_EQ(late.Output(1)[10].value, 0.0) << "before the layer there is silence";
}

TEST(Apply, TakesTheWorkAreaAsItIs) {
  struct AreaCase {
    const char* what;
    int32_t start, duration;
    size_t keys;
  };
  constexpr AreaCase kCases[] = {
      {"empty", 10, 0, 0},
      {"reversed", 10, -5, 0},
      {"one frame", 10, 1, 1},
      {"behind the sound", 3000, 3, 3},
      {"at the end of time", INT32_MAX - 1, INT32_MAX, 0},
  };
  for (const AreaCase& c : kCases) {
    Instance instance(0.5);
    instance.comp.workAreaStart = c.start;
    instance.comp.workAreaDuration = c.duration;
    instance.SetUpSequence();
    ExpectClean(instance.PressAndRelease());
    EXPECT_EQ(instance.Output(1).size(), c.keys) << c.what;
  }
}

TEST(Apply, LeavesOtherKeysAndReplacesThoseAtItsTimes) {
  Instance instance(0.3);
  instance.SetUpSequence();
  instance.effect->streams[29].Set(
      {{{-5, 10}, 1.0}, {{0, 7}, 2.0}, {{50, 3000}, 3.0}, {{9, 1}, 4.0}});
  ExpectClean(instance.PressAndRelease());
  const std::vector<Keyframe> first = instance.Output(1);
  ASSERT_EQ(first.size(), 12U);
  EXPECT_EQ(first.front().value, 1.0);
  EXPECT_NE(first[1].value, 2.0) << "the one at time 0 is replaced";
  EXPECT_EQ(first[2].value, 3.0) << "one between two steps stays";
  EXPECT_EQ(first.back().value, 4.0);

  ExpectClean(instance.PressAndRelease());
  ASSERT_EQ(instance.Output(1).size(), first.size()) << "a second run adds none";
  for (size_t i = 0; i < first.size(); ++i) EXPECT_EQ(instance.Output(1)[i].value, first[i].value);
}

TEST(Apply, FallsOffFromItsOwnPastAlone) {
  Instance instance;
  instance.SetUpSequence();
  CoverPulses(instance, 1);
  CoverPulses(instance, 2);
  CoverPulses(instance, 3);
  instance.Set("Range 1/Falloff", "Linear");
  instance.Set("Range 1/Falloff Time [sec]", "0.25");
  instance.Set("Range 2/Falloff", "Exponential");
  instance.Set("Range 2/Falloff Time [sec]", "0.25");
  instance.Set("Range 3/Falloff", "None (integrate)");
  instance.Set("Range 3/Output Min/Max", "-1..+1");
  ExpectClean(instance.PressAndRelease());
  // From frame 18 on, 0.6 s, no pulse reaches the window until frame 28.
  for (size_t i = 18; i < 27; ++i) {
    const double linear = std::max(instance.Output(1)[i - 1].value - 100.0 / 30.0 / 0.25, 0.0);
    EXPECT_NEAR(instance.Output(1)[i].value, linear, 1e-9) << i;
    EXPECT_NEAR(instance.Output(2)[i].value,
                instance.Output(2)[i - 1].value * std::pow(0.05, 1.0 / 7.5), 1e-9)
        << i;
    EXPECT_EQ(instance.Output(3)[i].value, instance.Output(3)[i - 1].value) << i;
  }
  EXPECT_NEAR(instance.Output(3).front().value, instance.Output(1).front().value / 50.0 - 1.0, 1e-9)
      << "the same sound on another scale";
  EXPECT_GT(instance.Output(3).back().value, 1.0) << "an integral leaves the scale";
}

TEST(Apply, ShowsHowFarItIs) {
  Instance instance(1.0);
  instance.SetUpSequence();
  std::vector<std::string> texts;
  instance.host.onInfoText = [&texts](const char* text) { texts.emplace_back(text); };
  ExpectClean(instance.PressAndRelease());
  ASSERT_EQ(texts.size(), 30U);
  EXPECT_EQ(texts.front(), "(1/30)");
  EXPECT_EQ(texts.back(), "(30/30)");
}

TEST(Apply, WithoutALayerHearsSilence) {
  Instance instance(0.3);
  instance.SetUpSequence();
  instance.effect->chosenLayers.clear();
  ExpectClean(instance.PressAndRelease());
  ASSERT_EQ(instance.Output(1).size(), 9U);
  for (const Keyframe& key : instance.Output(1)) EXPECT_EQ(key.value, 0.0);
}

TEST(Apply, SurvivesParametersOutsideTheirRanges) {
  constexpr PF_Fixed kValues[] = {INT32_MIN, -65536, 0, 1, 65536, INT32_MAX};
  constexpr size_t kSliders[] = {5, 6, 7, 10, 27, 28};
  for (const PF_Fixed value : kValues) {
    Instance instance(0.1);
    instance.SetUpSequence();
    for (const size_t slider : kSliders) instance.effect->Value(slider).u.fd.value = value;
    for (const size_t corner : {22U, 23U}) {
      instance.effect->Value(corner).u.td.x_value = value;
      instance.effect->Value(corner).u.td.y_value = value;
    }
    for (const size_t popup : {3U, 21U, 24U, 26U}) instance.effect->Value(popup).u.pd.value = value;
    const CommandResult result = instance.PressAndRelease();
    EXPECT_EQ(result.error, PF_Err_NONE) << value;
    EXPECT_EQ(instance.Output(1).size(), 3U) << value;
  }
}

}  // namespace
