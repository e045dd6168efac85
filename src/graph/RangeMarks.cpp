// Outlines and digits of the ranges.
#include "graph/RangeMarks.h"

#include <cstddef>
#include <cstdint>

#include "graph/GraphPrimitives.h"
#include "platform/Truncate.h"

namespace {

int32_t RowOfLevel(const GraphLayout& layout, double level) {
  return Truncate<int32_t>(layout.bottom - level * layout.graphHeight);
}

// Not the column before the next band's first one: truncation toward zero keeps it at 0 in a frame
// of a few pixels.
int32_t LastColumnOf(const GraphLayout& layout, int32_t band) {
  return Truncate<int32_t>((band + 1) * layout.bandWidth + layout.left - 1.0);
}

}  // namespace

void DrawRangeMarks(const OutputWorld& world, const GraphLayout& layout,
                    const GraphSettings& settings, const RangeGeometry& geometry) {
  constexpr int32_t kDigitDrop = 2;
  for (size_t range = 0; range < geometry.bands.size(); ++range) {
    const BandRun& run = geometry.bands[range];
    if (!settings.active[range] || !LiesInBank(run)) continue;
    const int32_t bottomRow = RowOfLevel(layout, geometry.levels[range].lowerLevel);
    const int32_t column = layout.column[static_cast<size_t>(run.firstBand)];
    if (settings.selectionRanges) {
      const int32_t topRow = RowOfLevel(layout, geometry.levels[range].upperLevel);
      DrawRangeOutline(world, {topRow, bottomRow, column, LastColumnOf(layout, run.lastBand)});
    }
    if (settings.output) {
      DrawGlyph(world, kDigits[range], column, int64_t{bottomRow} + kDigitDrop);
    }
  }
}
