// A pixel, and a colour to paint with.
#pragma once

#include <cstdint>

// Straight alpha, 255 opaque. The bytes lie in memory as they stand here; in text a colour is
// written 0xAARRGGBB.
struct ColorBGRA {
  uint8_t blue = 0;
  uint8_t green = 0;
  uint8_t red = 0;
  uint8_t alpha = 0;

  constexpr ColorBGRA() = default;
  constexpr explicit ColorBGRA(uint32_t argb)
      : blue(static_cast<uint8_t>(argb)),
        green(static_cast<uint8_t>(argb >> 8)),
        red(static_cast<uint8_t>(argb >> 16)),
        alpha(static_cast<uint8_t>(argb >> 24)) {}

  friend constexpr bool operator==(const ColorBGRA&, const ColorBGRA&) = default;
};

static_assert(sizeof(ColorBGRA) == 4);
