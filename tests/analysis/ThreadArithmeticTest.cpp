// Catches a thread that computes otherwise after the band levels than before them.
#include <xmmintrin.h>

#include <bit>
#include <limits>
#include <stdexcept>

#include "AnalysisHost.h"
#include "analysis/BandLevels.h"
#include "analysis/ResonatorForms.h"
#include "platform/FlushToZero_sse2.h"
#include "tools/bankcases/BankCase.h"

namespace {

constexpr unsigned kUsual = 0x1F80;
constexpr unsigned kFlushesOperands = 0x0040;
constexpr unsigned kRoundsUp = 0x4000;
constexpr unsigned kFlushesResults = 0x8000;

bool IsFlushing() {
  volatile double smallest = std::numeric_limits<double>::min();
  smallest = smallest / 2.0;
  return std::bit_cast<uint64_t>(double{smallest}) == 0;
}

TEST(ThreadArithmetic, IsPutBackAlsoWhenTheMathsThrows) {
  AnalysisHost host;
  host.samples = MakeNoise(300, 0);
  host.utils.ansi.log = [](double) -> double { throw std::runtime_error("log"); };
  const unsigned before = _mm_getcsr();
  for (const unsigned change : {0U, kFlushesOperands, kRoundsUp, kFlushesResults}) {
    for (const ResonatorForm& form : ResonatorForms()) {
      _mm_setcsr(kUsual | change);
      BandArray bands{1.0};
      EXPECT_THROW(ComputeBandLevels(&host.in_data, TestParameters(), 0, 3000, bands),
                   std::runtime_error);
      form.sumMagnitudes(TunedBank(~0U, 1.0), {host.samples.data(), 300}, 1, bands);
      EXPECT_EQ(_mm_getcsr() & ~_MM_EXCEPT_MASK, kUsual | change) << form.name;
    }
  }
  _mm_setcsr(before);
}

TEST(ThreadArithmetic, FlushesOnlyWhileTheObjectLives) {
  try {
    const FlushToZero flushing;
    EXPECT_TRUE(IsFlushing());
    throw std::runtime_error("a pass");
  } catch (const std::runtime_error&) {
    EXPECT_FALSE(IsFlushing());
  }
}

}  // namespace
