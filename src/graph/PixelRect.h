// Rectangles of pixels: clipping them to a world, and writing every pixel of one.
#pragma once

#include <algorithm>
#include <cstdint>

#include "graph/OutputWorld.h"

// All four bounds inclusive. Nothing lies in it where a last bound is below its first one.
struct PixelRect {
  int64_t firstRow = 0;
  int64_t lastRow = -1;
  int64_t firstColumn = 0;
  int64_t lastColumn = -1;
};

constexpr PixelRect Intersection(const PixelRect& a, const PixelRect& b) {
  return {std::max(a.firstRow, b.firstRow), std::min(a.lastRow, b.lastRow),
          std::max(a.firstColumn, b.firstColumn), std::min(a.lastColumn, b.lastColumn)};
}

constexpr PixelRect WholeWorld(const OutputWorld& world) {
  return {0, world.height - 1, 0, world.width - 1};
}

// Where glyphs and outlines are drawn: not in row 0, not in column 0.
constexpr PixelRect MarkedPart(const OutputWorld& world) {
  return {1, world.height - 1, 1, world.width - 1};
}

// Writes the pixels of one row, both columns included. They must lie in the world.
template <typename Write>
void WriteRow(PF_Pixel* row, int64_t firstColumn, int64_t lastColumn, Write write) {
  for (int64_t x = firstColumn; x <= lastColumn; ++x) write(row[x]);
}

// Writes the pixels of `rect` that lie in `part`, which must lie in the world.
template <typename Write>
void WriteRect(const OutputWorld& world, const PixelRect& part, const PixelRect& rect,
               Write write) {
  const PixelRect inside = Intersection(part, rect);
  for (int64_t row = inside.firstRow; row <= inside.lastRow; ++row) {
    WriteRow(world.Row(row), inside.firstColumn, inside.lastColumn, write);
  }
}
