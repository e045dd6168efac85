// A button with an icon at the left of its plate and a label centred in the rest.
#pragma once

#include "toolkit/ButtonWithIcon.h"

class ButtonWithIconAndCenteredText : public ButtonWithIcon {
 public:
  using ButtonWithIcon::ButtonWithIcon;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};
