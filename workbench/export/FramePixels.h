// The pixels of one frame, wherever they lie.
#pragma once

#include <cstddef>
#include <cstdint>

#include "AE_EffectTypes.h"

// Rows of alpha, red, green, blue, 8 bits each, straight alpha; the first row is the top.
struct FramePixels {
  const PF_Pixel8* first = nullptr;  // borrowed
  int32_t rowBytes = 0;              // from one row to the next, a multiple of 4
  int32_t width = 0;
  int32_t height = 0;

  const PF_Pixel8* Row(int32_t y) const {
    return first + ptrdiff_t{y} * (rowBytes / static_cast<int32_t>(sizeof(PF_Pixel8)));
  }
};
