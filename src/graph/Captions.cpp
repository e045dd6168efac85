// The captions' glyphs and their places.
#include "graph/Captions.h"

#include "graph/GraphPrimitives.h"

namespace {

constexpr CaptionGlyph kSpectrumGlyphs[] = {
    {&kGlyphS, 0},  {&kGlyphP, 5},  {&kGlyphE, 10}, {&kGlyphC, 15},    {&kGlyphT, 20},
    {&kGlyphR, 26}, {&kGlyphU, 31}, {&kGlyphM, 36}, {&kGlyphPlus, 44}, {&kGlyphR, 50},
    {&kGlyphA, 55}, {&kGlyphN, 60}, {&kGlyphG, 65}, {&kGlyphE, 70},    {&kGlyphS, 75},
};

constexpr CaptionGlyph kOutputGlyphs[] = {
    {&kGlyphO, 0},  {&kGlyphU, 5},  {&kGlyphT, 10}, {&kGlyphP, 16},
    {&kGlyphU, 21}, {&kGlyphT, 26}, {&kGlyphS, 32},
};

}  // namespace

constinit const Caption kSpectrumCaption = kSpectrumGlyphs;
constinit const Caption kOutputCaption = kOutputGlyphs;

void DrawCaption(const OutputWorld& world, Caption caption, int64_t x, int64_t y) {
  for (const auto& [glyph, offset] : caption) DrawGlyph(world, *glyph, x + offset, y);
}
