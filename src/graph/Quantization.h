// Bars in whole segments, with a gap at the foot of each.
#pragma once

#include <cstdint>

#include "graph/GraphLayout.h"

struct Quantization {
  int32_t segment = 0;   // rows; 0 in a graph lower than its number of segments
  int32_t segments = 0;  // how many have a gap; none if negative
  int64_t halfGap = 0;   // rows cleared at the foot of a segment; none if negative
};

// The segments of a graph of `graphHeight` rows.
//
// quantizeValue   how many there are to be; 0 gives segments without height
// fillSegment     the share of a segment that isn't gap
Quantization MakeQuantization(int32_t graphHeight, int32_t quantizeValue, float fillSegment);

// The height of the nearest whole number of segments, up to half a segment above `barHeight`.
int64_t QuantizedHeight(const Quantization& quantization, int32_t barHeight);

// Whether the row lies in a gap, at the foot of a segment.
bool IsGapRow(const Quantization& quantization, const GraphLayout& layout, int64_t row);
