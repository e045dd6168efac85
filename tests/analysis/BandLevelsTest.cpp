// Catches a level that is off by one rounding, a gain or a mask that reaches a wrong band, sound
// asked for at a wrong time, and sound that isn't given back when something fails.
#include "analysis/BandLevels.h"

#include <limits>
#include <stdexcept>

#include "AnalysisHost.h"
#include "analysis/ResonatorForms.h"
#include "tools/bankcases/BankCase.h"

namespace {

constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();

BandArray AllBands() {
  BandArray mask;
  mask.fill(1.0);
  return mask;
}

BandArray LevelsOf(const AnalysisHost& host, const TestParameters& params,
                   BandArray levels = AllBands()) {
  EXPECT_EQ(ComputeBandLevels(&host.in_data, params, 300, 3000, levels), PF_Err_NONE);
  return levels;
}

// The host's maths as polynomials, which give the same bits everywhere. The levels were worked out
// with them by a program in another language.
TEST(BandLevels, EveryStepIsRoundedByItselfInItsOrder) {
  constexpr std::pair<size_t, double> kPinned[] = {
      {0, 0x1.32efde269ddf7p-12}, {1, 0x1.7cc2c8f0df67p-12},  {2, 0x1.d39b1e5e2c039p-11},
      {9, 0x1.7a23f39bf9b95p-8},  {10, 0x1.6a7e5a4460537p-8}, {12, 0x1.a2cb6b8526261p-9},
      {15, 0x1.53a1823dfd6a4p-8}, {20, 0x1.3edac44cdb972p-7}, {22, 0x1.dff8a1324523bp-8},
      {29, 0x1.1ff20551c0e12p-6}, {30, 0x1.44dd755a89a4bp-5}, {31, 0x1.f55fdfc3968a0p-5}};
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

// With all four gains alike; the sums are the plain loop's.
TEST(BandLevels, AtTheEndsOfTheSlidersComeFromTheRightSums) {
  AnalysisHost host;
  host.samples = MakeNoise(400, 9);
  for (const PF_Fixed Q : {66, 65536}) {
    const ResonatorBank bank = TunedBank(~0U, Q / 65536.0);
    BandArray sums;
    SumMagnitudes_scalar(bank, {host.samples.data(), 400}, kChannelMix, sums);
    for (const PF_Fixed scale : {0, 1, 10000 * kFixedOne}) {
      for (const PF_Fixed gain : {0, kFixedOne, 50 * kFixedOne}) {
        TestParameters params;
        params.At(kScale).fd.value = scale;
        params.At(kQ).fd.value = Q;
        for (int32_t index = kSubBase; index <= kTreble; ++index) params.At(index).fd.value = gain;
        const BandArray levels = LevelsOf(host, params);
        for (int32_t k = 0; k < kBandCount; ++k) {
          const auto [subBase, base, mid, treble] = GroupSharesOf(k);
          const double G = gain / 65536.0;
          const double weight = (base * G + subBase * G + mid * G + treble * G) * 6.0;
          const double mean = sums.at(static_cast<size_t>(k)) * (1.0 / 400.0);
          const double raised = std::sqrt(65536.0 / Q) * 0.4 * (scale / 65536.0);
          EXPECT_EQ(levels.at(static_cast<size_t>(k)),
                    std::min(1.0, weight * (std::log(mean + 1.0) * raised)))
              << "band " << k << ", Q " << Q << ", scale " << scale << ", gain " << gain;
        }
      }
    }
  }
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
      mask[band] = !wanted ? -0.0 : band % 2 == 0 ? -0.25 : std::nan("");
      if (wanted) expected[band] = whole[band];
    }
    EXPECT_EQ(LevelsOf(host, TestParameters(), mask), expected) << pattern;
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
    int32_t start, duration;
  };
  constexpr WindowCase kCases[] = {{0, 3000, -225, 451},           {92, 100, 84, 16},
                                   {-50, 2997, -275, 450},         {7, 0, 7, 1},
                                   {kMin, 3000, kMin, 451},        {kMax, 3000, kMax - 225, 451},
                                   {0, ~0U, -322122547, 644245095}};
  for (const auto& [time, timeScale, start, duration] : kCases) {
    AnalysisHost host;
    BandArray levels{};
    EXPECT_EQ(ComputeBandLevels(&host.in_data, TestParameters(), time, timeScale, levels), 0);
    EXPECT_EQ(host.start, start) << time << " / " << timeScale;
    EXPECT_EQ(host.duration, duration) << time << " / " << timeScale;
  }
}

TEST(BandLevels, WithoutSoundAllAreZeroAndWhatWasTakenIsGivenBack) {
  constexpr AudioAnswers kAnswers[] = {
      {.checkoutError = 4, .hasSound = false},
      {.checkoutError = 4},
      {.hasSound = false},
      {.fetchError = 516},
      {.givesData = false},
      {.framesBeside = -50},
      {}  // digital silence
  };
  for (size_t i = 0; i < std::size(kAnswers); ++i) {
    AnalysisHost host;
    host.answers = kAnswers[i];
    host.samples.resize(100);
    BandArray levels = AllBands();
    const PF_Err err = ComputeBandLevels(&host.in_data, TestParameters(), 0, 3000, levels);
    EXPECT_EQ(err, kAnswers[i].checkoutError + kAnswers[i].fetchError) << i;
    EXPECT_EQ(levels, BandArray{}) << i;
    EXPECT_TRUE(host.fetches == (i < 3 ? 0 : 1) && host.checkins == host.fetches) << i;
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
