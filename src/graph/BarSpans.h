// Which columns of a row the bars fill, and which the gaps between them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

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

// Columns without a break, both ends included.
struct ColumnStretch {
  int64_t first = 0;
  int64_t last = -1;
};

constexpr size_t PixelBytes(const ColumnStretch& stretch) {
  return static_cast<size_t>(stretch.last - stretch.first + 1) * sizeof(PF_Pixel);
}

// What bars and gaps make of a row.
struct BarSpans {
  static constexpr size_t kMost = size_t{2} * kBandCount;  // a bar and a gap for each band

  // In the order in which they are stored: the bars from left to right, joined where neighbours
  // have one colour, then the gaps that cut them.
  std::array<ColumnSpan, kMost> spans{};
  size_t barCount = 0;
  size_t count = 0;
  // All columns of the spans, so that a row can be copied in few pieces.
  std::array<ColumnStretch, kMost> stretches{};
  size_t stretchCount = 0;
  int64_t endAbove = 0;  // from this height above the bottom on, fewer bars are left
};

// The gaps at the left edge of each band.
using BandGaps = std::array<ColumnSpan, kBandCount>;

// The bars that are more than `above` rows high, cut by `gaps`.
BarSpans BarSpansAt(const OutputWorld& world, const GraphLayout& layout, const BarHeights& heights,
                    const BandColors& colors, int64_t above, std::span<const ColumnSpan> gaps);

BandGaps BandGapsOf(const OutputWorld& world, const GraphLayout& layout);

// The gap over all bands.
ColumnStretch RowGapOf(const OutputWorld& world, const GraphLayout& layout);

inline void StoreSpan(PF_Pixel* row, const ColumnSpan& span) {
  WriteRow(row, span.first, span.last, StorePixel{span.color});
}

inline void ClearStretch(PF_Pixel* row, const ColumnStretch& stretch) {
  if (stretch.last < stretch.first) return;
  std::memset(row + stretch.first, 0, PixelBytes(stretch));
}

// Copies columns from another row of the world.
inline void CopyStretch(const PF_Pixel* from, PF_Pixel* to, const ColumnStretch& stretch) {
  std::memcpy(to + stretch.first, from + stretch.first, PixelBytes(stretch));
}
