// An arrow that folds a group out and in again.
#pragma once

#include "toolkit/StockControl.h"

// Points to the right while closed and down while open. A release inside turns it: the listener
// hears of that, and the owner of the press and of a release inside.
class Twirly : public StockControl {
 public:
  using StockControl::StockControl;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;

  // Nobody is told.
  void SetOpen(bool newOpen);
  bool IsOpen() const { return open; }

 private:
  bool open = false;
  bool pressed = false;
};
