// The four ways in which the graph writes a pixel.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#include "AE_EffectTypes.h"

// Which lanes each write sets; a dot keeps what is there.
//
//               byte 0   byte 1   byte 2   byte 3
//               alpha    red      green    blue
//   StorePixel  a        r        g        b
//   MarkGreen   255      .        green    .
//   MarkBlue    255      .        .        255
//   DimPixel    half     .        .        .

// A pixel's four bytes as one number, in the order in which they lie in memory. Compilers write
// rows of numbers in wide steps, rows of single bytes they don't.
using PixelWord = uint32_t;
static_assert(sizeof(PF_Pixel) == sizeof(PixelWord));

constexpr PixelWord WordOf(PF_Pixel pixel) {
  return std::bit_cast<PixelWord>(pixel);
}

// Through memcpy, because a world need not be aligned to four bytes.
inline PixelWord LoadWord(const PF_Pixel& pixel) {
  PixelWord word = 0;
  std::memcpy(&word, &pixel, sizeof word);
  return word;
}
inline void StoreWord(PF_Pixel& pixel, PixelWord word) {
  std::memcpy(&pixel, &word, sizeof word);
}

struct StorePixel {
  PF_Pixel value;

  void operator()(PF_Pixel& pixel) const { StoreWord(pixel, WordOf(value)); }
};

struct MarkGreen {
  uint8_t green = 255;

  void operator()(PF_Pixel& pixel) const {
    constexpr PixelWord kKept = WordOf({0, 255, 0, 255});
    StoreWord(pixel, (LoadWord(pixel) & kKept) | WordOf({255, 0, green, 0}));
  }
};

struct MarkBlue {
  void operator()(PF_Pixel& pixel) const {
    StoreWord(pixel, LoadWord(pixel) | WordOf({255, 0, 0, 255}));
  }
};

struct DimPixel {
  void operator()(PF_Pixel& pixel) const { pixel.alpha /= 2; }
};
