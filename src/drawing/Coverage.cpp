// Adding spans of samples to the pixels that they touch.
#include "drawing/Coverage.h"

#include <algorithm>

namespace {

void AddWeight(uint8_t& pixel, int32_t weight) {
  pixel = static_cast<uint8_t>(std::min(pixel + weight, 255));
}

// In bytes throughout, a sum that wraps being less than its parts: so the compiler does sixteen
// pixels at a time.
void AddWholePixels(uint8_t* pixel, const uint8_t* end, uint8_t weight) {
  for (; pixel != end; ++pixel) {
    const auto sum = static_cast<uint8_t>(*pixel + weight);
    *pixel = sum < weight ? uint8_t{255} : sum;
  }
}

}  // namespace

void CoverSpan(uint8_t* row, int32_t first, int32_t end, const SampleGrid& grid) {
  const int32_t firstPixel = first >> grid.shift;
  const int32_t lastPixel = (end - 1) >> grid.shift;
  if (firstPixel == lastPixel) {
    AddWeight(row[firstPixel], (end - first) * grid.weight);
    return;
  }
  AddWeight(row[firstPixel], (grid.samples - (first & grid.mask)) * grid.weight);
  AddWholePixels(row + firstPixel + 1, row + lastPixel,
                 static_cast<uint8_t>(grid.samples * grid.weight));
  AddWeight(row[lastPixel], (((end - 1) & grid.mask) + 1) * grid.weight);
}

void CoverRow(uint8_t* row, const Crossing* crossings, int32_t left, int32_t right,
              const SampleGrid& grid) {
  int32_t winding = 0;
  int32_t start = 0;
  for (const Crossing* crossing = crossings; crossing != nullptr; crossing = crossing->next) {
    const bool wasInside = winding != 0;
    winding += crossing->winding;
    if (!wasInside) {
      start = crossing->x;
    } else if (winding == 0) {
      const int32_t first = std::max(start, left);
      const int32_t end = std::min(crossing->x, right);
      if (first < end) CoverSpan(row, first, end, grid);
    }
  }
}
