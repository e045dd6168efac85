// The fringe of a letter.
#include "tools/fonts/Fringe.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kPlainInk = 64;
constexpr int kFaintest = 1;
constexpr int kStrongest = 24;
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

void LayFringe(Glyph& letter, int kernThreshold) {
  int rowsAtEdge = 0;
  for (int row = 0; row < letter.rows; ++row) {
    rowsAtEdge += letter.At(row, letter.inkWidth - 1) >= kPlainInk ? 1 : 0;
  }
  const int fringe = FringeFor(rowsAtEdge, kernThreshold);
  const int space = letter.width - letter.inkWidth;
  for (int row = 0; row < letter.rows; ++row) {
    const int last = RightmostInk(letter, row);
    if (last < 0) continue;
    for (int column = last + 1; column <= last + space; ++column) {
      letter.At(row, column) = static_cast<uint8_t>(fringe);
    }
  }
}
