// A line between groups of controls.
#pragma once

#include "toolkit/ControlPane.h"

// Lies if wider than high, else stands; in the middle of its bounds. The mouse passes through.
class Divider : public ControlPane {
 public:
  using ControlPane::ControlPane;

  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  bool ContainsLocalPoint(const Point& point) const override;
};
