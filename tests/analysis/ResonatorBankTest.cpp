// Catches a bank whose sums differ in a single bit from the recursion written out by hand, and a
// form of it that differs from the plain loop.
#include "analysis/ResonatorBank.h"

#include "AnalysisHost.h"
#include "analysis/ResonatorForms.h"
#include "tools/bankcases/BankCase.h"

namespace {

// Every product goes through memory, so that no compiler can fuse it with the sum behind it.
double SlowSum(double F, double q, const std::vector<int16_t>& samples, int channel) {
  double low = 0.0;
  double band = 0.0;
  double sum = 0.0;
  for (size_t frame = 0; frame < samples.size() / 2; ++frame) {
    const double left = samples[2 * frame] / 32768.0;
    const double right = samples[2 * frame + 1] / 32768.0;
    const double x = channel == 1 ? left : channel == 2 ? right : (left + right) / 2.0;
    volatile double product = band * F;
    low += product;
    product = x * q;
    double high = product - low;
    product = band * q;
    high -= product;
    product = high * F;
    band += product;
    sum += std::signbit(band) ? -band : band;
  }
  return sum;
}

TEST(ResonatorBank, SumsAreThoseOfTheRecursionByHand) {
  constexpr double kGuard = -7.25;
  const auto sounds = {MakeNoise(0, 0), MakeNoise(1, 0), MakeNoise(7, 0), MakeNoise(6615, 2)};
  for (const ResonatorBank& bank : {TunedBank(~0U, 0.1), TunedBank(0xFFE00000U, 1.0)}) {
    for (int run = 0; run < 20; ++run) {
      const std::vector<int16_t>& sound = std::data(sounds)[run % 4];
      const int channel = run / 4 - 1;
      BandArray sums;
      sums.fill(kGuard);
      SumMagnitudes(bank, {sound.data(), static_cast<int32_t>(sound.size() / 2)}, channel, sums);
      for (size_t i = 0; i < sums.size(); ++i) {
        const bool isUsed = std::cmp_less(i, bank.count);
        const double F = bank.tuning[i];
        const double expected = isUsed ? SlowSum(F, bank.damping[i], sound, channel) : kGuard;
        ASSERT_EQ(sums[i], expected) << i << " of " << bank.count << ", run " << run;
      }
    }
  }
}

// The ends of the slider.
constexpr double kDampings[] = {66.0 / 65536.0, 1.0};

TEST(ResonatorForms, AgreeOnEveryLengthPastTwoBlocksAndOnWholeWindows) {
  std::vector<size_t> lengths = {6615, 6630, 7350};
  for (size_t length = 0; length <= 70; ++length) lengths.push_back(length);
  for (const size_t length : lengths) {
    for (const double Q : kDampings) {
      for (const int32_t channel : {1, 2, 3}) {
        const BankCase run{TunedBank(~0U, Q), MakeNoise(length, 0), channel};
        ASSERT_EQ(FindDifference(run), "") << "Q " << Q;
      }
    }
  }
}

TEST(ResonatorForms, AgreeOnMasksOfEveryCountAtAnyPlace) {
  for (uint32_t count = 0; count <= 32; ++count) {
    const auto mask = static_cast<uint32_t>((uint64_t{1} << count) - 1);
    for (uint32_t place = 0; place + count <= 32; ++place) {
      const BankCase run{TunedBank(count == 0 ? 0 : mask << place, kDampings[place % 2]),
                         MakeNoise(300, 3), static_cast<int32_t>(place % 3)};
      ASSERT_EQ(FindDifference(run), "") << "from band " << place;
    }
  }
}

// The plain loop keeps what sinks below the normal numbers, the other forms flush it.
TEST(ResonatorForms, AgreeOnTailsThatSinkBelowTheNormalNumbers) {
  for (const size_t second : {0U, 1000U, 4000U, 6600U}) {
    for (const int16_t click : {int16_t{1}, int16_t{-32768}}) {
      BankCase run{TunedBank(~0U, 1.0), std::vector<int16_t>(size_t{2} * 7350), 1};
      run.samples[0] = run.samples[2 * second] = click;
      ASSERT_EQ(FindDifference(run), "") << "clicks of " << click << " at 0 and " << second;
    }
  }
}

TEST(ResonatorForms, AgreeOnRandomCases) {
  for (uint32_t number = 0; number < 2000; ++number) {
    ASSERT_EQ(FindDifference(MakeBankCase(number)), "") << "case " << number;
  }
}

TEST(ResonatorTuning, KeepsEveryBandInsideTheEdgeOfStabilityAtTheLargestQ) {
  const ResonatorBank bank = TunedBank(~0U, 1.0);
  ASSERT_EQ(bank.count, 32);
  for (size_t i = 0; i < 32; ++i) {
    // The edge follows from the trace and the determinant of the recursion.
    EXPECT_LT(bank.damping[i], 2.0 / bank.tuning[i] - bank.tuning[i] / 2.0) << "band " << i;
    EXPECT_EQ(bank.damping[i], i == 29 ? 0.79 : i == 30 ? 0.45 : i == 31 ? 0.18 : 1.0);
  }
}

}  // namespace
