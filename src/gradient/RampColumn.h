// One column of a ramp that is shown from left to right.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"

// Gives a column the bits that a line of its width and height would give it at `opacity`, below
// 256: it covers all of the column's pixels, at the scales of screens. A fill costs a hundredth of
// the line.
inline void FillColumn(ImageBuffer& buffer, const Rect& column, ColorBGRA color, int32_t opacity,
                       const Rect& clip) {
  constexpr int32_t kWholeCoverage = 255;
  buffer.FillRect(column, color, kWholeCoverage * opacity / 256, &clip);
}
