// A button with an icon on a rounded plate.
#pragma once

#include "toolkit/QvIconButton.h"

class QvIconButtonWithBG : public QvIconButton {
 public:
  using QvIconButton::QvIconButton;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  // The icon stands for it.
  void DrawLabel(const Rect& rect, const Rect& clip, const ColorBGRA& color, ImageBuffer& buffer,
                 int32_t alignment) override;
};
