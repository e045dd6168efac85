// How finely pixels are sampled.
#pragma once

#include <cstdint>

// Each pixel has samples x samples of them; together they weigh 256, or 255 for a single one.
struct SampleGrid {
  int32_t shift = 0;
  int32_t samples = 1;
  int32_t mask = 0;
  int32_t weight = 255;
};

// quality   1 to 4; anything else is one sample a pixel
constexpr SampleGrid MakeSampleGrid(int32_t quality) {
  switch (quality) {
    case 1:
      return {1, 2, 1, 64};
    case 2:
      return {2, 4, 3, 16};
    case 3:
      return {3, 8, 7, 4};
    case 4:
      return {4, 16, 15, 1};
    default:
      return {};
  }
}
