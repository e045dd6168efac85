// Catches a level that is off by one rounding, a gain or a mask that reaches a wrong band, sound
// asked for at a wrong time, and sound that isn't given back when something fails.
#include "analysis/BandLevels.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <stdexcept>

#include "AnalysisHost.h"

namespace {

constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr uint32_t kLargestScale = std::numeric_limits<uint32_t>::max();

constexpr BandArray kAllBands = [] {
  BandArray mask{};
  for (double& entry : mask) entry = 1.0;
  return mask;
}();

BandArray LevelsOf(const AnalysisHost& host, const TestParameters& params,
                   BandArray levels = kAllBands) {
  EXPECT_EQ(ComputeBandLevels(&host.in_data, params, 300, 3000, levels), PF_Err_NONE);
  return levels;
}

struct LevelCase {
  size_t band;
  double level;
};

TEST(BandLevels, ASineStandsInItsOwnBandAndFallsOffToItsNeighbours) {
  AnalysisHost host;
  const auto play = [&host](double amplitude) {
    host.samples.clear();
    for (int i = 0; i < 6615; ++i) {
      const double value = amplitude * std::sin(2.0 * std::numbers::pi * 509.66 * i / 44100.0);
      host.samples.insert(host.samples.end(), 2, static_cast<int16_t>(std::lround(value)));
    }
    return LevelsOf(host, TestParameters());
  };
  const BandArray loud = play(32767);
  for (const auto& [band, level] : {LevelCase{13, 0.527}, {14, 1}, {15, 1}, {16, 1}, {17, 0.521}}) {
    EXPECT_NEAR(loud[band], level, 0.0005) << "band " << band;
  }
  const BandArray soft = play(3276);
  EXPECT_NEAR(soft[14], 0.109, 0.0005);
  EXPECT_NEAR(soft[15], 0.45, 0.005);
}

// The host's maths as polynomials, which give the same bits everywhere. The levels were worked out
// with them by a program in another language.
TEST(BandLevels, EveryStepIsRoundedByItselfInItsOrder) {
  constexpr LevelCase kPinned[] = {
      {0, 0x1.32efde269ddf7p-12}, {2, 0x1.d39b1e5e2c039p-11}, {9, 0x1.7a23f39bf9b95p-8},
      {10, 0x1.6a7e5a4460537p-8}, {12, 0x1.a2cb6b8526261p-9}, {15, 0x1.53a1823dfd6a4p-8},
      {20, 0x1.3edac44cdb972p-7}, {22, 0x1.dff8a1324523bp-8}, {29, 0x1.1ff20551c0e12p-6},
      {30, 0x1.44dd755a89a4bp-5}, {31, 0x1.f55fdfc3968a0p-5}};
  AnalysisHost host;
  host.utils.ansi.sin = [](double x) { return x * (1.0 - x * x * 0.16); };
  host.utils.ansi.log = [](double x) { return x - 1.0; };
  host.utils.ansi.sqrt = [](double x) { return x * 0.5; };
  host.samples = MakeNoise(501, 0);
  TestParameters params;
  params.At(kChannel).pd.value = kChannelRight;
  constexpr PF_Fixed kGains[] = {3277, 24248, 19661, 58982, 39322, 16384};  // kScale to kTreble
  for (int32_t i = 0; i < 6; ++i) params.At(kScale + i).fd.value = kGains[i];
  const BandArray levels = LevelsOf(host, params);
  for (const auto& [band, level] : kPinned) EXPECT_EQ(levels[band], level) << "band " << band;
}

TEST(BandLevels, SubBaseSilencesTwoBandsHalvesTheNextAndLeavesTheOthers) {
  AnalysisHost host;
  host.samples = MakeNoise(6615, 6);
  TestParameters params;
  BandArray expected = LevelsOf(host, params);
  for (const double level : expected) ASSERT_TRUE(level > 0.0 && level < 1.0);
  expected[0] = expected[1] = 0.0;
  expected[2] *= 0.5;
  params.At(kSubBase).fd.value = 0;
  EXPECT_EQ(LevelsOf(host, params), expected);
  static_assert(GroupSharesOf(10).base == 0.9999999999 && GroupSharesOf(10).base != 1.0);
}

TEST(BandLevels, TheMaskSilencesItsBandsAndLeavesTheOthersToTheBit) {
  AnalysisHost host;
  host.samples = MakeNoise(1000, 5);
  const BandArray whole = LevelsOf(host, TestParameters());
  for (const uint32_t pattern : {0U, 1U, 0x80000000U, 0x3FF00U, 0x55555555U, 0xFFFFFFFEU}) {
    BandArray mask{};
    BandArray expected{};
    for (size_t band = 0; band < mask.size(); ++band) {
      const bool wanted = (pattern >> band & 1U) != 0;
      mask[band] = wanted ? std::nan("") : -0.0;
      if (wanted) expected[band] = whole[band];
    }
    EXPECT_EQ(LevelsOf(host, TestParameters(), mask), expected) << pattern;
  }
}

TEST(BandLevels, DoublingTheSoundNeverLowersALevelAndACallLeavesNothingBehind) {
  AnalysisHost host;
  TestParameters params;
  for (const PF_Fixed Q : {66, 6554, 65536}) {
    params.At(kQ).fd.value = Q;
    host.samples = MakeNoise(1000, 14);
    BandArray before{};
    for (int doubled = 0; doubled < 14; ++doubled) {
      const BandArray levels = LevelsOf(host, params);
      EXPECT_EQ(LevelsOf(host, params), levels);
      for (size_t band = 0; band < levels.size(); ++band) {
        EXPECT_TRUE(levels[band] >= before[band] && levels[band] <= 1.0) << Q << ", " << band;
      }
      before = levels;
      for (int16_t& sample : host.samples) sample = static_cast<int16_t>(sample * 2);
    }
  }
}

TEST(BandLevels, SettingsThatNoSliderAllowsGiveNumbersUpToOne) {
  AnalysisHost host;
  host.samples = MakeNoise(500, 0);
  for (int32_t index = kScale; index <= kTreble; ++index) {
    for (const PF_Fixed value : {kMin, -kFixedOne, 0, kMax}) {
      TestParameters params;
      params.At(index).fd.value = value;
      for (const double level : LevelsOf(host, params)) EXPECT_LE(level, 1.0) << index << value;
    }
  }
}

TEST(BandLevels, TheWindowIsCentredOnTheTimeAndHeldAtTheEndsOfTime) {
  struct WindowCase {
    int32_t time;
    uint32_t timeScale;
    int32_t start;
    int32_t duration;
  };
  constexpr WindowCase kCases[] = {
      {0, 3000, -225, 451},
      {92, 100, 84, 16},
      {-50, 2997, -275, 450},
      {7, 0, 7, 1},
      {kMin, 3000, kMin, 451},
      {kMax, 3000, kMax - 225, 451},
      {kMin, kLargestScale, kMin, 644245095},
      {kMax, 1, kMax, 1},
  };
  for (const WindowCase& c : kCases) {
    AnalysisHost host;
    BandArray levels{};
    EXPECT_EQ(ComputeBandLevels(&host.in_data, TestParameters(), c.time, c.timeScale, levels), 0);
    EXPECT_TRUE(host.formatIsRight);
    EXPECT_EQ(host.start, c.start) << c.time << " / " << c.timeScale;
    EXPECT_EQ(host.duration, c.duration) << c.time << " / " << c.timeScale;
  }
}

TEST(BandLevels, WithoutSoundAllAreZeroAndWhatWasTakenIsGivenBack) {
  struct FailureCase {
    const char* what = nullptr;
    AudioAnswers answers;
    int fetches = 0;  // and check-ins: both follow a check-out that gave sound
  };
  constexpr FailureCase kCases[] = {
      {"check-out refused", {.checkoutError = 4, .hasSound = false}, 0},
      {"check-out refused, reference set all the same", {.checkoutError = 4}, 0},
      {"no layer, or one without sound", {.hasSound = false}, 0},
      {"fetch refused", {.fetchError = 516}, 1},
      {"no data", {.givesData = false}, 1},
      {"no frame", {.framesBeside = -50}, 1},
      {"fewer than no frames", {.framesBeside = -51}, 1},
      {"digital silence", {}, 1},
  };
  for (const FailureCase& c : kCases) {
    AnalysisHost host;
    host.answers = c.answers;
    host.samples.resize(100);
    BandArray levels = kAllBands;
    const PF_Err err = ComputeBandLevels(&host.in_data, TestParameters(), 0, 3000, levels);
    EXPECT_EQ(err, c.answers.checkoutError + c.answers.fetchError) << c.what;
    EXPECT_EQ(levels, BandArray{}) << c.what;
    EXPECT_EQ(host.fetches, c.fetches) << c.what;
    EXPECT_EQ(host.checkins, c.fetches) << c.what;
  }
}

TEST(BandLevels, TheSoundIsGivenBackWhenTheMathsThrows) {
  AnalysisHost host;
  host.samples = MakeNoise(10, 0);
  host.utils.ansi.log = [](double) -> double { throw std::runtime_error("log"); };
  EXPECT_THROW(LevelsOf(host, TestParameters()), std::runtime_error);
  EXPECT_EQ(host.checkins, 1);
}

}  // namespace
