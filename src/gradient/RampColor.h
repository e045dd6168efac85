// A colour of the map as a pixel.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"
#include "platform/Truncate.h"

// Opaque. Components below 0.0, and those that are no number, give black; above 1.0 they are full.
inline ColorBGRA PixelOf(float red, float green, float blue) {
  ColorBGRA pixel;
  pixel.red = Truncate<uint8_t>(red * 255.0F);
  pixel.green = Truncate<uint8_t>(green * 255.0F);
  pixel.blue = Truncate<uint8_t>(blue * 255.0F);
  pixel.alpha = 255;
  return pixel;
}

// An opaque grey of that much red, green and blue.
constexpr ColorBGRA Gray(uint8_t level) {
  return ColorBGRA(0xFF000000U | level * 0x010101U);
}
