// Columns of bars and gaps.
#include "graph/BarSpans.h"

#include <algorithm>
#include <limits>

namespace {

ColumnSpan HeldToWorld(const OutputWorld& world, ColumnSpan span) {
  return {std::max<int64_t>(span.first, 0), std::min(span.last, world.width - 1), span.color};
}

void AddBars(const OutputWorld& world, const GraphLayout& layout, const BarHeights& heights,
             const BandColors& colors, int64_t above, BarSpans& bars) {
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
      open = &bars.spans[bars.barCount++];
      *open = span;
    }
  }
}

// Gaps of narrow bands overlap; neighbouring spans touch.
void JoinStretches(BarSpans& bars) {
  std::array<ColumnStretch, BarSpans::kMost> sorted{};
  size_t filled = 0;
  for (size_t i = 0; i < bars.count; ++i) {
    const ColumnSpan& span = bars.spans[i];
    if (span.first <= span.last) sorted[filled++] = {span.first, span.last};
  }
  std::ranges::sort(std::span(sorted).first(filled), {}, &ColumnStretch::first);
  for (const ColumnStretch& next : std::span(sorted).first(filled)) {
    if (bars.stretchCount > 0) {
      ColumnStretch& open = bars.stretches[bars.stretchCount - 1];
      if (next.first <= open.last + 1) {
        open.last = std::max(open.last, next.last);
        continue;
      }
    }
    bars.stretches[bars.stretchCount++] = next;
  }
}

}  // namespace

BarSpans BarSpansAt(const OutputWorld& world, const GraphLayout& layout, const BarHeights& heights,
                    const BandColors& colors, int64_t above, std::span<const ColumnSpan> gaps) {
  BarSpans bars;
  bars.endAbove = std::numeric_limits<int64_t>::max();
  AddBars(world, layout, heights, colors, above, bars);
  bars.count = bars.barCount;
  for (const ColumnSpan& gap : gaps) bars.spans[bars.count++] = gap;
  JoinStretches(bars);
  return bars;
}

BandGaps BandGapsOf(const OutputWorld& world, const GraphLayout& layout) {
  constexpr int64_t kGapColumns = 4;
  BandGaps gaps{};
  for (size_t band = 0; band < gaps.size(); ++band) {
    const int64_t first = layout.column[band];
    // The last gap of a narrow graph stops a column before the bands end.
    const int64_t end =
        first + kGapColumns < layout.right ? first + kGapColumns : int64_t{layout.right} - 1;
    gaps[band] = HeldToWorld(world, {first, end - 1, kClearedPixel});
  }
  return gaps;
}

ColumnStretch RowGapOf(const OutputWorld& world, const GraphLayout& layout) {
  return {std::max<int64_t>(layout.left, 0), std::min(int64_t{layout.right} - 1, world.width - 1)};
}
