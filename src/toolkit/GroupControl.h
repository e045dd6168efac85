// A row of cells, exactly one of which is on.
#pragma once

#include <string>
#include <vector>

#include "toolkit/StockControl.h"

// Cells are equally wide. A press turns one on: owner and listener hear of it, the listener only
// where it is another one.
class GroupControl : public StockControl {
 public:
  using StockControl::StockControl;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnMouseLeave() override;
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;

  // A cell shows a text of any bytes, or a picture of two states side by side, the one for on at
  // the right; the picture isn't owned. The first cell is on at once.
  void AddTextCell(const std::string& text);
  void AddStripCell(const ImageBuffer* strip);
  int32_t GetCellCount() const { return static_cast<int32_t>(cells.size()); }
  // Outside the cells nothing changes; nobody is told.
  void SetActiveCell(int32_t index);
  int32_t GetActiveCell() const { return activeCell; }  // -1 without cells
  // Local; all zero for an index outside the cells.
  Rect GetCellRect(int32_t index) const;
  // The cell at a local point, -1 for none.
  int32_t FindCell(const Point& point) const;

 private:
  struct Cell {
    std::string text;
    const ImageBuffer* strip = nullptr;
  };

  void AddCell(const Cell& cell);
  void PaintCell(const PaintTarget& target, const Rect& place, int32_t index);
  void PaintStrip(const PaintTarget& target, const Rect& place, int32_t index) const;

  std::vector<Cell> cells;
  int32_t activeCell = -1;
  int32_t hoverCell = -1;
  int32_t pressedCell = -1;
};
