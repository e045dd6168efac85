// Columns of bars and gaps.
#include "graph/BarSpans.h"

#include <algorithm>
#include <limits>

namespace {

ColumnSpan HeldToWorld(const OutputWorld& world, ColumnSpan span) {
  return {std::max<int64_t>(span.first, 0), std::min(span.last, world.width - 1), span.color};
}

}  // namespace

BarSpans BarSpansAt(const OutputWorld& world, const GraphLayout& layout, const BarHeights& heights,
                    const BandColors& colors, int64_t above) {
  BarSpans bars;
  bars.endAbove = std::numeric_limits<int64_t>::max();
  ColumnSpan* open = nullptr;
  for (size_t band = 0; band < heights.size(); ++band) {
    if (heights[band] <= above) {
      open = nullptr;
      continue;
    }
    bars.endAbove = std::min(bars.endAbove, heights[band]);
    const ColumnSpan span =
        HeldToWorld(world, {layout.column[band], layout.column[band + 1] - 1, colors[band]});
    if (open != nullptr && WordOf(open->color) == WordOf(span.color)) {
      open->last = span.last;
    } else {
      open = &bars.spans[bars.count++];
      *open = span;
    }
  }
  return bars;
}

std::array<ColumnSpan, kBandCount> BandGaps(const OutputWorld& world, const GraphLayout& layout) {
  constexpr int64_t kGapColumns = 4;
  std::array<ColumnSpan, kBandCount> gaps{};
  for (size_t band = 0; band < gaps.size(); ++band) {
    const int64_t first = layout.column[band];
    // The last gap of a narrow graph stops a column before the bands end.
    const int64_t end =
        first + kGapColumns < layout.right ? first + kGapColumns : int64_t{layout.right} - 1;
    gaps[band] = HeldToWorld(world, {first, end - 1, kClearedPixel});
  }
  return gaps;
}

ColumnSpan RowGap(const OutputWorld& world, const GraphLayout& layout) {
  return HeldToWorld(world, {layout.left, int64_t{layout.right} - 1, kClearedPixel});
}
