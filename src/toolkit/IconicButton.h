// A button with an icon that gets a ground only under the pointer, when pressed or on.
#pragma once

#include "toolkit/ButtonWithIcon.h"

class IconicButton : public ButtonWithIcon {
 public:
  using ButtonWithIcon::ButtonWithIcon;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};
