// The picture that PatternPlugin renders.
#pragma once

#include "AE_EffectTypes.h"

// spot         a point parameter in pixels of the world
// downsample   the denominator of the host's factor
inline PF_Pixel8 PatternPixel(int64_t x, int64_t y, int64_t tick, const PF_Point& spot,
                              A_u_long downsample) {
  const auto byte = [](int64_t value) { return static_cast<A_u_char>(value & 0xFF); };
  return {byte(x * 3 + y * 5 + tick), byte(x + tick * 7), byte(y + spot.h),
          byte(int64_t{spot.v} * 3 + downsample)};
}
