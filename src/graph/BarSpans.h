// Which columns of a row the bars fill, and which the gaps between them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "AE_EffectTypes.h"
#include "analysis/BandTable.h"
#include "graph/GraphLayout.h"
#include "graph/OutputWorld.h"
#include "graph/PixelRect.h"
#include "graph/PixelWrites.h"

constexpr PF_Pixel kClearedPixel = {0, 0, 0, 0};

// Columns of a row that lie in the world, both ends included, and what is stored there.
struct ColumnSpan {
  int64_t first = 0;
  int64_t last = -1;
  PF_Pixel color = kClearedPixel;
};

// Rows upward from the graph's bottom row, that one included.
using BarHeights = std::array<int64_t, kBandCount>;
using BandColors = std::array<PF_Pixel, kBandCount>;

// The bars that reach a row, from left to right, joined where neighbours have one colour.
struct BarSpans {
  std::array<ColumnSpan, kBandCount> spans{};
  size_t count = 0;
  int64_t endAbove = 0;  // from this height above the bottom on, fewer bars are left
};

// The bars that are more than `above` rows high.
BarSpans BarSpansAt(const OutputWorld& world, const GraphLayout& layout, const BarHeights& heights,
                    const BandColors& colors, int64_t above);

// The gaps at the left edge of each band.
std::array<ColumnSpan, kBandCount> BandGaps(const OutputWorld& world, const GraphLayout& layout);

// The gap over all bands.
ColumnSpan RowGap(const OutputWorld& world, const GraphLayout& layout);

inline void StoreSpan(PF_Pixel* row, const ColumnSpan& span) {
  WriteRow(row, span.first, span.last, StorePixel{span.color});
}
