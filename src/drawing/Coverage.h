// How much of each pixel of a row is covered.
#pragma once

#include <cstdint>

#include "drawing/Crossings.h"
#include "drawing/SampleGrid.h"

// Covers the samples from `first` up to, not including, `end` of one row of samples. `row` begins
// at sample 0; each of its bytes takes the weight of its samples and saturates at 255. There must
// be at least one sample.
void CoverSpan(uint8_t* row, int32_t first, int32_t end, const SampleGrid& grid);

// Covers what lies within the shape, the non-zero winding rule telling, from the sample `left` up
// to, not including, `right`. The crossings come sorted from left to right.
void CoverRow(uint8_t* row, const Crossing* crossings, int32_t left, int32_t right,
              const SampleGrid& grid);
