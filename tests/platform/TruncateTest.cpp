// Catches conversions whose result would depend on the processor: NaN, infinities, the ends of a
// range.
#include "platform/Truncate.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct SignedCase {
  const char* what;
  double value;
  int32_t expected;
};

TEST(Truncate, DropsTheFractionAndHoldsAtTheEndsOfASignedRange) {
  constexpr SignedCase kCases[] = {
      {"toward zero from above", 2.999, 2},
      {"toward zero from below", -2.999, -2},
      {"just inside zero", -0.999, 0},
      {"largest", 2147483647.0, 2147483647},
      {"largest with a fraction", 2147483647.9, 2147483647},
      {"one past the largest", 2147483648.0, 2147483647},
      {"smallest", -2147483648.0, -2147483647 - 1},
      {"past the smallest", -2147483650.0, -2147483647 - 1},
      {"infinite", kInfinity, 2147483647},
      {"negative infinite", -kInfinity, -2147483647 - 1},
      {"not a number", kNaN, 0},
  };
  for (const SignedCase& c : kCases) EXPECT_EQ(Truncate<int32_t>(c.value), c.expected) << c.what;
}

TEST(Truncate, HoldsAtTheEndsOfAnUnsignedRange) {
  EXPECT_EQ(Truncate<uint32_t>(4294967295.5), 4294967295U);
  EXPECT_EQ(Truncate<uint32_t>(4294967296.0), 4294967295U);
  EXPECT_EQ(Truncate<uint32_t>(-0.5), 0U);
  EXPECT_EQ(Truncate<uint32_t>(-1.0), 0U);
  EXPECT_EQ(Truncate<uint32_t>(-1e30), 0U);
  EXPECT_EQ(Truncate<uint8_t>(255.9F), 255);
  EXPECT_EQ(Truncate<uint8_t>(256.0F), 255);
}

TEST(Truncate, TakesSinglePrecisionAtARangeThatItCannotHoldExactly) {
  // 2147483647 rounds up to 2147483648 in single precision, which no int32 holds.
  EXPECT_EQ(Truncate<int32_t>(2147483648.0F), 2147483647);
  EXPECT_EQ(Truncate<int32_t>(2147483520.0F), 2147483520);
}

}  // namespace
