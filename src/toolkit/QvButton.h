// A button with a label on a rounded plate.
#pragma once

#include "toolkit/MomentaryButton.h"

class QvButton : public MomentaryButton {
 public:
  using MomentaryButton::MomentaryButton;

  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};
