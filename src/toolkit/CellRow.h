// A row of cells side by side, exactly one of which is the active one.
#pragma once

#include <cstdint>

#include "toolkit/StockControl.h"

// A press makes a cell the active one: owner and listener hear of it, the listener only where it is
// another one.
class CellRow : public StockControl {
 public:
  using StockControl::StockControl;

  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnMouseLeave() override;
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;

  virtual int32_t GetCellCount() const = 0;
  // The cell at a local point, -1 for none.
  virtual int32_t FindCell(const Point& point) const = 0;
  // Outside the cells nothing changes; nobody is told.
  void SetActiveCell(int32_t index);
  int32_t GetActiveCell() const { return activeCell; }  // -1 without cells

 protected:
  // How a cell is to be shown.
  struct CellLook {
    bool active = false;
    bool over = false;
    bool pressed = false;
  };
  CellLook LookOf(int32_t index) const;
  // For a cell that was added: the first one is the active one at once.
  void TakeNewCell();

 private:
  int32_t activeCell = -1;
  int32_t hoverCell = -1;
  int32_t pressedCell = -1;
};
