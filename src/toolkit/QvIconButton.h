// A button that is a bare icon, with a frame while it is selected.
#pragma once

#include "toolkit/ButtonWithIcon.h"

class QvIconButton : public ButtonWithIcon {
 public:
  using ButtonWithIcon::ButtonWithIcon;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};
