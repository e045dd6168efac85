// What the stock controls share: they show pointer, press and focus, and tell a listener.
#pragma once

#include "toolkit/ControlPane.h"
#include "toolkit/PaintArea.h"
#include "toolkit/Plate.h"
#include "toolkit/StockListener.h"
#include "toolkit/StockPaint.h"

class StockControl : public ControlPane {
 public:
  using ControlPane::ControlPane;

  void SetEnabled(bool enabled) override;
  void OnMouseEnter() override;
  void OnMouseLeave() override;
  void OnFocusGained() override;
  void OnFocusLost() override;

  // Not owned, may be null; lives as long as it is set.
  void SetListener(StockListener* newListener) { listener = newListener; }

 protected:
  bool HasFocus();
  PaintArea AreaToPaint(const Rect& rect, const Point& position) const;
  // Fainter while the control is disabled.
  PaintTarget TargetFor(ImageBuffer& buffer, const PaintArea& area) const;
  // A press shows before the pointer that made it.
  PlateLook LookWhile(bool pressed) const {
    return {IsEnabled(), IsMouseOver() && !pressed, pressed};
  }
  // A line round the control that has the focus.
  void PaintFocus(const PaintTarget& target, const Rect& rect, double radius);

  // All three tell whether this control is still there.
  bool RedrawAndTellListener();
  bool RedrawAndTellPress();
  bool RedrawAndTellRelease();

  StockListener* listener = nullptr;
};
