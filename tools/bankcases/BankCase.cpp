// Made-up banks and sounds.
#include "tools/bankcases/BankCase.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <sstream>
#include <utility>

#include "AE_EffectCB.h"
#include "analysis/ResonatorForms.h"
#include "analysis/ResonatorTuning.h"

namespace {

constexpr int16_t kMost = std::numeric_limits<int16_t>::max();
constexpr int16_t kLeast = std::numeric_limits<int16_t>::min();

class CaseMaker {
 public:
  explicit CaseMaker(uint32_t number) : random(number) {}

  BankCase Make() {
    BankCase made;
    made.bank = TunedBank(AnyMask(), AnyQ());
    made.channel = static_cast<int32_t>(Below(4));
    made.samples = AnySound(2 * AnyLength());
    return made;
  }

 private:
  // The library's distributions give other numbers elsewhere.
  uint32_t Below(uint32_t end) { return static_cast<uint32_t>(random()) % end; }
  int16_t AnySample() { return static_cast<int16_t>(random()); }

  // Every count of bands is as likely as any other.
  uint32_t AnyMask() {
    const uint32_t count = Below(kBandCount + 1);
    uint32_t mask = 0;
    while (std::cmp_less(std::popcount(mask), count)) mask |= 1U << Below(kBandCount);
    return mask;
  }

  double AnyQ() {
    constexpr uint32_t kSmallest = 66;
    constexpr uint32_t kOne = 65536;
    const uint32_t choices[] = {kSmallest, kOne, kOne, kSmallest + Below(kOne - kSmallest),
                                static_cast<uint32_t>(random())};
    return static_cast<int32_t>(choices[Below(5)]) / 65536.0;
  }

  uint32_t AnyLength() {
    constexpr uint32_t kWindows[] = {6615, 6629, 6630, 7350};
    return Below(16) == 0 ? kWindows[Below(4)] : Below(800);
  }

  std::vector<int16_t> AnySound(uint32_t length) {
    std::vector<int16_t> samples(length);
    const uint32_t kind = Below(6);
    const uint32_t shift = Below(16);
    int16_t held = kLeast;
    for (uint32_t i = 0; i < length; ++i) {
      int16_t& sample = samples[i];
      if (kind == 0) sample = static_cast<int16_t>(AnySample() >> shift);
      if (kind == 1) sample = Below(2) == 0 ? kLeast : kMost;
      if (kind == 2) sample = held;
      if (kind == 3 && i >> 6U == shift) sample = AnySample();  // silence around it
      // Steps and single samples, far apart.
      if (kind >= 4 && Below(1U << shift) == 0) held = AnySample();
      if (kind == 4) sample = held;
      if (kind == 5) sample = std::exchange(held, int16_t{0});
    }
    return samples;
  }

  std::mt19937 random;
};

constexpr double kGuard = -7.25;
using Sums = std::array<double, kBandCount>;

Sums SumsOf(const ResonatorForm& form, const BankCase& run) {
  Sums sums;
  sums.fill(kGuard);
  const auto count = static_cast<int32_t>(run.samples.size() / 2);
  form.sumMagnitudes(run.bank, {run.samples.data(), count}, run.channel, sums);
  return sums;
}

}  // namespace

ResonatorBank TunedBank(uint32_t mask, double Q) {
  PF_ANSICallbacks ansi{};
  ansi.sin = [](double x) { return std::sin(x); };
  std::array<double, kBandCount> bands{};
  for (uint32_t k = 0; k < kBandCount; ++k) bands[k] = mask >> k & 1U;
  return TuneResonators(bands, Q, ansi);
}

BankCase MakeBankCase(uint32_t number) {
  return CaseMaker(number).Make();
}

std::string FindDifference(const BankCase& bankCase) {
  const auto forms = ResonatorForms();
  const Sums right = SumsOf(forms.front(), bankCase);
  for (const ResonatorForm& form : forms.subspan(1)) {
    const Sums sums = SumsOf(form, bankCase);
    for (size_t i = 0; i < sums.size(); ++i) {
      if (std::bit_cast<uint64_t>(sums[i]) == std::bit_cast<uint64_t>(right[i])) continue;
      std::ostringstream words;
      words << std::hexfloat << form.name << " gives " << sums[i] << " for " << right[i]
            << ", resonator " << i << " of " << bankCase.bank.count << ", "
            << bankCase.samples.size() / 2 << " frames, channel " << bankCase.channel;
      return words.str();
    }
  }
  return {};
}
