// A row of cells, each a text or a picture, exactly one of which is on.
#pragma once

#include <string>
#include <vector>

#include "toolkit/CellRow.h"

// Cells are equally wide.
class GroupControl : public CellRow {
 public:
  using CellRow::CellRow;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  int32_t GetCellCount() const override { return static_cast<int32_t>(cells.size()); }
  int32_t FindCell(const Point& point) const override;

  // A cell shows a text of any bytes, or a picture of two states side by side, the one for on at
  // the right; the picture isn't owned.
  void AddTextCell(const std::string& text);
  void AddStripCell(const ImageBuffer* strip);
  // Local; all zero for an index outside the cells.
  Rect GetCellRect(int32_t index) const;

 private:
  struct Cell {
    std::string text;
    const ImageBuffer* strip = nullptr;
  };

  void AddCell(const Cell& cell);
  void PaintCell(const PaintTarget& target, const Rect& place, int32_t index);
  void PaintStrip(const PaintTarget& target, const Rect& place, int32_t index) const;

  std::vector<Cell> cells;
};
