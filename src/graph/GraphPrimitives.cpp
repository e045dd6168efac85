// Marks, clipped to the part of the world that they may touch.
#include "graph/GraphPrimitives.h"

#include <cstddef>

#include "graph/PixelWrites.h"

namespace {

PixelRect Grown(const PixelRect& rect, int64_t by) {
  return {rect.firstRow - by, rect.lastRow + by, rect.firstColumn - by, rect.lastColumn + by};
}

template <typename Write>
void WriteFrame(const OutputWorld& world, const PixelRect& rect, Write write) {
  const auto& [firstRow, lastRow, firstColumn, lastColumn] = rect;
  const PixelRect part = MarkedPart(world);
  WriteRect(world, part, {firstRow, firstRow, firstColumn, lastColumn}, write);
  WriteRect(world, part, {lastRow, lastRow, firstColumn, lastColumn}, write);
  WriteRect(world, part, {firstRow, lastRow, firstColumn, firstColumn}, write);
  WriteRect(world, part, {firstRow, lastRow, lastColumn, lastColumn}, write);
}

}  // namespace

void PlotPixel(const OutputWorld& world, int64_t x, int64_t y) {
  WriteRect(world, MarkedPart(world), {y, y, x, x}, MarkGreen{});
}

void DimRect(const OutputWorld& world, const PixelRect& rect) {
  WriteRect(world, MarkedPart(world), rect, DimPixel{});
}

void DimFrame(const OutputWorld& world, const PixelRect& rect) {
  WriteFrame(world, rect, DimPixel{});
}

void DrawRangeOutline(const OutputWorld& world, const PixelRect& rect) {
  WriteFrame(world, rect, MarkGreen{});
  DimFrame(world, Grown(rect, 1));
  DimFrame(world, Grown(rect, -1));
}

void DrawGlyph(const OutputWorld& world, const Glyph& glyph, int64_t x, int64_t y) {
  DimRect(world, {y + glyph.backing.firstRow, y + glyph.backing.lastRow,
                  x + glyph.backing.firstColumn, x + glyph.backing.lastColumn});
  const size_t width = glyph.cells.size() / kGlyphRows;
  for (size_t cell = 0; cell < glyph.cells.size(); ++cell) {
    if (glyph.cells[cell] != '#') continue;
    PlotPixel(world, x + static_cast<int64_t>(cell % width),
              y + static_cast<int64_t>(cell / width));
  }
}
