// Putting a colour on pixels as far as a shape covers them.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"

// As many pixels in a row as bytes of coverage.
struct CoverageRun {
  const uint8_t* coverage = nullptr;
  ColorBGRA* pixels = nullptr;
  int32_t count = 0;
};

// Composites the colour at an alpha of the coverage, reduced by an opacity below 256.
void PaintCoverage(const CoverageRun& run, ColorBGRA color, int32_t opacity);

// Makes the coverage, reduced by an opacity below 256, the alpha; blue, green and red stay.
void StoreCoverage(const CoverageRun& run, int32_t opacity);
