// Whole division that rounds down for negative dividends too.
#pragma once

#include <cstdint>

// divisor   above 0
constexpr int64_t FloorDivide(int64_t dividend, int64_t divisor) {
  const int64_t quotient = dividend / divisor;
  return dividend % divisor < 0 ? quotient - 1 : quotient;
}
