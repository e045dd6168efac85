// A row of cells side by side, exactly one of which is the active one.
#include "toolkit/CellRow.h"

void CellRow::TakeNewCell() {
  if (activeCell < 0) activeCell = 0;
  SetDirty(true);
}

void CellRow::SetActiveCell(int32_t index) {
  if (index < 0 || index >= GetCellCount() || index == activeCell) return;
  activeCell = index;
  SetDirty(true);
}

void CellRow::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  const int32_t index = FindCell(point);
  pressedCell = index;
  if (index >= 0 && index != activeCell) {
    activeCell = index;
    if (!RedrawAndTellListener()) return;
  }
  RedrawAndTellPress();
}

void CellRow::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  pressedCell = -1;
  RedrawAndTellRelease();
}

void CellRow::OnMouseLeave() {
  StockControl::OnMouseLeave();
  hoverCell = -1;
}

int32_t CellRow::GetCursorAt(WindowContext* /*context*/, const Point& point,
                             const Modifiers& /*modifiers*/) {
  const int32_t index = FindCell(point);
  if (index != hoverCell) {
    hoverCell = index;
    RedrawSelf();
  }
  return 0;
}

CellRow::CellLook CellRow::LookOf(int32_t index) const {
  return {index == activeCell, index == hoverCell && IsEnabled(), index == pressedCell};
}
