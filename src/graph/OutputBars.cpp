// Lit part, track, hold mark and digit of each output bar.
#include "graph/OutputBars.h"

#include <cstddef>
#include <cstdint>

#include "graph/GraphPrimitives.h"
#include "graph/PixelRect.h"
#include "graph/PixelWrites.h"
#include "platform/Truncate.h"

namespace {

// The columns of one output bar.
struct BarColumns {
  int32_t first = 0;
  int32_t last = 0;
};

void DrawBar(const OutputWorld& world, const GraphLayout& layout, const BarColumns& columns,
             double raw, double held) {
  constexpr uint8_t kLitGreen = 255;
  constexpr uint8_t kTrackGreen = 100;
  const auto markRows = [&](int64_t firstRow, int64_t lastRow, uint8_t green) {
    WriteRect(world, WholeWorld(world), {firstRow, lastRow, columns.first, columns.last},
              MarkGreen{green});
  };
  const int64_t rawHeight = Truncate<int32_t>(layout.graphHeight * raw);
  const int64_t heldHeight = Truncate<int32_t>(layout.graphHeight * held);
  markRows(layout.bottom - rawHeight + 1, layout.bottom, kLitGreen);
  markRows(layout.top, layout.bottom - rawHeight, kTrackGreen);
  if (heldHeight != rawHeight) {
    markRows(layout.bottom - heldHeight, layout.bottom - heldHeight, kLitGreen);
  }
}

}  // namespace

void DrawOutputBars(const OutputWorld& world, const GraphLayout& layout,
                    const std::array<bool, kRangeCount>& active,
                    std::span<const double, kRangeCount> raw,
                    std::span<const double, kRangeCount> held) {
  constexpr int32_t kDigitDrop = 2;
  for (size_t range = 0; range < active.size(); ++range) {
    if (!active[range]) continue;
    const int32_t first = layout.outputColumn[range];
    DrawBar(world, layout, {first, first + layout.outputBarWidth - 1}, raw[range], held[range]);
    DrawGlyph(world, kDigits[range], first, int64_t{layout.bottom} + kDigitDrop);
  }
}
