// Who is told that a control has another value.
#pragma once

class ControlPane;

class StockListener {
 public:
  virtual ~StockListener() = default;

  // May delete the control, its owner or the whole tree.
  virtual void OnControlChanged(ControlPane* source) = 0;
};
