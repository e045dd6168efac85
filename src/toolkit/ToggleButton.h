// A button that stays on, lit, until the next press.
#pragma once

#include "toolkit/ButtonControl.h"

class ToggleButton : public ButtonControl {
 public:
  // The label's font is not owned; null for FontDefault.
  ToggleButton(ControlPane* ownerPane, const Rect& initialBounds, const Font* labelFont = nullptr);

  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

  bool IsOn() const { return pressed; }
  // Nobody is told.
  void SetOn(bool on);

 protected:
  // Whether the mouse holds it down.
  bool IsHeld() const { return tracking; }
  // A line round the button that has the focus.
  void PaintFocus(const PaintArea& area, ImageBuffer& buffer);
};
