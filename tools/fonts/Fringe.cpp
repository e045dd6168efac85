// The fringe of a letter.
#include "tools/fonts/Fringe.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kPlainInk = 64;
constexpr int kFaintest = 6;
constexpr int kStrongest = 10;
constexpr double kShareOfFullInk = 0.7;  // the facing edge is often a curve

int RightmostInk(const Glyph& glyph, int row) {
  int column = glyph.inkWidth - 1;
  while (column >= 0 && glyph.At(row, column) == 0) --column;
  return column;
}

// Contact in one row is sqrt(fringe x ink); the rows at the edge share the threshold.
int FringeFor(int rowsAtEdge, int kernThreshold) {
  const double inEachRow = static_cast<double>(kernThreshold) / std::max(rowsAtEdge, 1);
  const double fringe = inEachRow * inEachRow / (255 * kShareOfFullInk);
  return std::clamp(static_cast<int>(std::ceil(fringe)), kFaintest, kStrongest);
}

}  // namespace

void LayFringe(Glyph& letter, bool isCapital, const Recipe& recipe) {
  int rowsAtEdge = 0;
  for (int row = 0; row < letter.rows; ++row) {
    rowsAtEdge += letter.At(row, letter.inkWidth - 1) >= kPlainInk ? 1 : 0;
  }
  const int fringe = FringeFor(rowsAtEdge, recipe.kernThreshold);
  const int space = letter.width - letter.inkWidth;
  const int notchFilledTo = isCapital ? 0 : letter.width - recipe.deepestNotch;
  for (int row = 0; row < letter.rows; ++row) {
    const int firstEmpty = RightmostInk(letter, row) + 1;
    if (firstEmpty == 0) continue;
    const int end = firstEmpty + space;
    for (int column = firstEmpty; column < std::max(end, notchFilledTo); ++column) {
      letter.At(row, column) = static_cast<uint8_t>(column < end ? fringe : kFaintest);
    }
  }
}
