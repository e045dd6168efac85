// A button with a cross, which takes away what it belongs to.
#pragma once

#include "toolkit/MomentaryButton.h"

class CloseButton : public MomentaryButton {
 public:
  CloseButton(ControlPane* ownerPane, const Rect& initialBounds);

  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};
