// The two captions: SPECTRUM + RANGES over the bands, OUTPUTS over the output bars.
#pragma once

#include <cstdint>
#include <span>

#include "graph/GlyphBitmaps.h"
#include "graph/OutputWorld.h"

struct CaptionGlyph {
  const Glyph* glyph = nullptr;
  int32_t offset = 0;  // columns from the caption's start
};

using Caption = std::span<const CaptionGlyph>;

extern const Caption kSpectrumCaption;
extern const Caption kOutputCaption;

// Draws a caption with its top left cell at x, y. A later glyph's backing dims the edge of the one
// before it.
void DrawCaption(const OutputWorld& world, Caption caption, int64_t x, int64_t y);
