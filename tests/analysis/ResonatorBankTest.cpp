// Catches a bank whose sums differ in a single bit from the recursion written out by hand.
#include "analysis/ResonatorBank.h"

#include "AnalysisHost.h"
#include "analysis/ResonatorTuning.h"

namespace {

ResonatorBank TunedBank(size_t first, size_t count, double Q) {
  BandArray mask{};
  for (size_t i = 0; i < count; ++i) mask[first + i] = 1.0;
  return TuneResonators(mask, Q, AnalysisHost().utils.ansi);
}

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
  for (const ResonatorBank& bank : {TunedBank(0, 32, 0.1), TunedBank(21, 11, 1.0)}) {
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

TEST(ResonatorTuning, KeepsEveryBandInsideTheEdgeOfStabilityAtTheLargestQ) {
  const ResonatorBank bank = TunedBank(0, 32, 1.0);
  ASSERT_EQ(bank.count, 32);
  for (size_t i = 0; i < 32; ++i) {
    // The edge follows from the trace and the determinant of the recursion.
    EXPECT_LT(bank.damping[i], 2.0 / bank.tuning[i] - bank.tuning[i] / 2.0) << "band " << i;
    EXPECT_EQ(bank.damping[i], i == 29 ? 0.79 : i == 30 ? 0.45 : i == 31 ? 0.18 : 1.0);
  }
}

}  // namespace
