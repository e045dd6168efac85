// One glyph on its way into a strip.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Its cell: ink begins in column 0, and all the space to the neighbour stands to the right of it.
struct Glyph {
  int width = 0;     // of the cell
  int inkWidth = 0;  // columns that ink may stand in
  int rows = 0;
  std::vector<uint8_t> coverage;  // rows x width, from the top

  Glyph(int cellWidth, int inkColumns, int rowCount)
      : width(cellWidth),
        inkWidth(inkColumns),
        rows(rowCount),
        coverage(static_cast<size_t>(cellWidth) * static_cast<size_t>(rowCount)) {}

  uint8_t& At(int row, int column) {
    return coverage[static_cast<size_t>(row) * static_cast<size_t>(width) +
                    static_cast<size_t>(column)];
  }
  uint8_t At(int row, int column) const { return const_cast<Glyph&>(*this).At(row, column); }
};
