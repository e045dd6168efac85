// A box with a check mark while it is on, and its label beside it.
#pragma once

#include "toolkit/ToggleButton.h"

class Checkbox : public ToggleButton {
 public:
  using ToggleButton::ToggleButton;

  // Without a label nothing is written beside the box.
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};
