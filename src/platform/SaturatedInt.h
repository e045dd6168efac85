// Sums of coordinates that may lie at the ends of an int32.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

// The nearest value that an int32 holds.
constexpr int32_t SaturatedInt(int64_t value) {
  using Limits = std::numeric_limits<int32_t>;
  return static_cast<int32_t>(std::clamp<int64_t>(value, Limits::min(), Limits::max()));
}
