// The grid's lines.
#include "graph/Grid.h"

#include <cstdint>

#include "graph/PixelRect.h"
#include "graph/PixelWrites.h"
#include "platform/Truncate.h"

void DrawGrid(const OutputWorld& world, const GraphLayout& layout) {
  const PixelRect part = WholeWorld(world);
  const auto markRow = [&](int32_t row) {
    WriteRect(world, part, {row, row, layout.gridFirstColumn, layout.gridLastColumn}, MarkBlue{});
  };
  double spacing = 1.3333333333333333;
  for (int32_t row = layout.top; row < layout.bottom;) {
    markRow(row);
    spacing = spacing * 1.5;
    row = Truncate<int32_t>(row + spacing);
  }
  markRow(layout.bottom);
  for (const int32_t column : {layout.left, layout.right}) {
    WriteRect(world, part, {layout.top, layout.bottom, column, column}, MarkBlue{});
  }
}
