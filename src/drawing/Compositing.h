// Putting one colour on one pixel, in whole numbers: everything that is painted comes through here.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"

// Lays blue, green and red of `source` on `pixel`.
//
// alpha   0 to 255: how much of the source comes through. The source's own alpha plays no part.
//
// Scaling is by >> 8, an arithmetic shift, and not by a division through 255: at 254 the pixel
// doesn't quite reach the source, and only 255 is opaque. On a pixel that is itself translucent the
// colours mix by the source's share of the new alpha ("over" for straight alpha, Porter and Duff).
inline void CompositePixel(ColorBGRA& pixel, ColorBGRA source, int32_t alpha) {
  if (alpha == 0) return;
  if (alpha == 255 || pixel.alpha == 0) {
    pixel = source;
    pixel.alpha = static_cast<uint8_t>(alpha);
    return;
  }
  if (pixel.alpha < 255) {
    const int32_t newAlpha = (((256 - alpha) * pixel.alpha) >> 8) + alpha;
    pixel.alpha = static_cast<uint8_t>(newAlpha);
    alpha = alpha * 255 / newAlpha;
  }
  const auto mix = [alpha](uint8_t from, uint8_t to) {
    return static_cast<uint8_t>((((to - from) * alpha) >> 8) + from);
  };
  pixel.blue = mix(pixel.blue, source.blue);
  pixel.green = mix(pixel.green, source.green);
  pixel.red = mix(pixel.red, source.red);
}
