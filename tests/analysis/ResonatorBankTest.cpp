// Catches a bank whose sums differ in a single bit from the recursion written out by hand.
#include "analysis/ResonatorBank.h"

#include <gtest/gtest.h>

#include <bit>

#include "AnalysisHost.h"
#include "analysis/ResonatorTuning.h"

namespace {

constexpr double kGuard = -7.25;

ResonatorBank TunedBank(size_t first, size_t count, double Q) {
  BandArray mask{};
  for (size_t i = 0; i < count; ++i) mask[first + i] = 1.0;
  return TuneResonators(mask, Q, AnalysisHost().utils.ansi);
}

// Frame by frame over all resonators. Every product goes through memory, so that no compiler can
// fuse it with the sum behind it.
BandArray SlowSums(const ResonatorBank& bank, const std::vector<int16_t>& samples, int channel) {
  BandArray lows{};
  BandArray bands{};
  BandArray sums;
  sums.fill(kGuard);
  for (size_t i = 0; i < static_cast<size_t>(bank.count); ++i) sums[i] = 0.0;
  for (size_t frame = 0; frame < samples.size() / 2; ++frame) {
    const double left = samples[2 * frame] / 32768.0;
    const double right = samples[2 * frame + 1] / 32768.0;
    const double x = channel == 1 ? left : channel == 2 ? right : (left + right) / 2.0;
    for (size_t i = 0; i < static_cast<size_t>(bank.count); ++i) {
      volatile double product = bands[i] * bank.tuning[i];
      lows[i] += product;
      product = x * bank.damping[i];
      double high = product - lows[i];
      product = bands[i] * bank.damping[i];
      high -= product;
      product = high * bank.tuning[i];
      bands[i] += product;
      sums[i] += std::signbit(bands[i]) ? -bands[i] : bands[i];
    }
  }
  return sums;
}

void ExpectSlowSums(const ResonatorBank& bank, const std::vector<int16_t>& samples) {
  const StereoFrames frames{samples.data(), static_cast<int32_t>(samples.size() / 2)};
  for (const int channel : {1, 2, 3, 0, -1}) {
    BandArray sums;
    sums.fill(kGuard);
    SumMagnitudes(bank, frames, channel, sums);
    const BandArray expected = SlowSums(bank, samples, channel);
    for (size_t i = 0; i < sums.size(); ++i) {
      ASSERT_EQ(std::bit_cast<uint64_t>(sums[i]), std::bit_cast<uint64_t>(expected[i]))
          << frames.count << " frames, channel " << channel << ", resonator " << i << " of "
          << bank.count << ": " << sums[i] << " and " << expected[i];
    }
  }
}

TEST(ResonatorBank, SumsAreThoseOfTheRecursionByHand) {
  std::vector<int16_t> click(13230, 0);
  click[0] = click[1] = 32767;
  for (const ResonatorBank& bank : {TunedBank(0, 32, 0.1), TunedBank(21, 11, 1.0),
                                    TunedBank(7, 1, 66.0 / 65536.0), TunedBank(0, 0, 0.1)}) {
    for (size_t frames = 0; frames <= 40; ++frames) ExpectSlowSums(bank, MakeNoise(frames, 0));
    for (const size_t frames : {6615U, 6630U, 7350U}) ExpectSlowSums(bank, MakeNoise(frames, 2));
    ExpectSlowSums(bank, click);
    ExpectSlowSums(bank, std::vector<int16_t>(200, -32768));
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
