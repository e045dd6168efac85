// The marks that the graph is made of: pixels, dimmed rectangles and frames, outlines, glyphs.
//
// Coordinates are pixels of the world and may lie anywhere: what is outside it is left out, and so
// is all that falls on row 0 or column 0.
#pragma once

#include <cstdint>

#include "graph/GlyphBitmaps.h"
#include "graph/OutputWorld.h"
#include "graph/PixelRect.h"

// Marks one pixel in full green.
void PlotPixel(const OutputWorld& world, int64_t x, int64_t y);

// Halves the alpha of every pixel of the rectangle.
void DimRect(const OutputWorld& world, const PixelRect& rect);

// Halves the alpha of the rectangle's first and last row, then of its first and last column: the
// corners twice. A row or column that is both first and last is dimmed twice too. Where firstRow
// is greater than lastRow only the two rows are dimmed, and likewise for columns.
void DimFrame(const OutputWorld& world, const PixelRect& rect);

// Draws a green outline on the rectangle's edge, with a dimmed frame around and one inside.
//
//   d d d d d
//   d # # # d
//   d # d # d      # outline, d dimmed
//   d # # # d
//   d d d d d
void DrawRangeOutline(const OutputWorld& world, const PixelRect& rect);

// Draws a glyph with its top left cell at x, y, on its dimmed backing.
void DrawGlyph(const OutputWorld& world, const Glyph& glyph, int64_t x, int64_t y);
