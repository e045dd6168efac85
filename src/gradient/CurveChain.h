// The smooth line through the points of a curve.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "drawing/Bezier3.h"
#include "gradient/CurveView.h"

// Pixels of a graph whose top left is (0, 0): position p stands at x = p, the value 1.0 at y = 0
// and the value 0.0 at y = height.
struct CurveChain {
  std::array<Cubic, CurvePointLimit - 1> segments;
  size_t count = 0;
};

// One segment between each two neighbours; none where there are fewer than three points or no
// height.
CurveChain BuildCurveChain(const CurveView& curve, int32_t height);

// The row of a value, and the value of a row, held to 0.0 to 1.0; 0 for no number, and at a height
// below 1.
float RowOfValue(float value, int32_t height);
float ValueOfRow(float row, int32_t height);

// Writes the samples that the chain passes over, and leaves those beside it as they are. Nothing
// happens where there is no chain.
void RebuildSamples(const CurveView& curve, int32_t height);
