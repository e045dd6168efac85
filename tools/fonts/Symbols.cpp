// Symbols as polygons on a square of 8 x 8, sampled 19 x 19 to the pixel.
#include "tools/fonts/Symbols.h"

#include <span>

namespace {

struct Corner {
  double x;
  double y;
};

constexpr double kSquare = 8;
constexpr int kSamples = 19;

constexpr Corner kCheckMark[] = {{0.4, 4.3}, {1.5, 3.2}, {3.0, 4.7},
                                 {6.5, 1.0}, {7.6, 2.1}, {3.0, 6.9}};
constexpr Corner kDiamond[] = {{4.0, 0.5}, {7.5, 4.0}, {4.0, 7.5}, {0.5, 4.0}};

bool IsInside(std::span<const Corner> polygon, double x, double y) {
  bool inside = false;
  Corner from = polygon.back();
  for (const Corner& to : polygon) {
    if ((from.y > y) != (to.y > y) &&
        x < (to.x - from.x) * (y - from.y) / (to.y - from.y) + from.x) {
      inside = !inside;
    }
    from = to;
  }
  return inside;
}

uint8_t CoverageOf(std::span<const Corner> polygon, int row, int column, double pixel) {
  int hits = 0;
  for (int i = 0; i < kSamples * kSamples; ++i) {
    const double x = (column + (i % kSamples + 0.5) / kSamples) * pixel;
    const double y = (row + (i / kSamples + 0.5) / kSamples) * pixel;
    hits += IsInside(polygon, x, y) ? 1 : 0;
  }
  return static_cast<uint8_t>(hits * 255 / (kSamples * kSamples));
}

}  // namespace

Glyph DrawSymbol(const Recipe& recipe, int code) {
  std::span<const Corner> polygon;
  if (code == '4') polygon = kCheckMark;
  if (code == 'u') polygon = kDiamond;
  if (polygon.empty()) return {recipe.rows * 7 / 8, 0, recipe.rows};
  Glyph glyph(recipe.rows, recipe.rows, recipe.rows);
  for (int row = 0; row < glyph.rows; ++row) {
    for (int column = 0; column < glyph.width; ++column) {
      glyph.At(row, column) = CoverageOf(polygon, row, column, kSquare / recipe.rows);
    }
  }
  return glyph;
}
