// The rounded plate that buttons with a label or an icon stand on.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"

// What a plate tells of its button.
struct PlateLook {
  bool enabled = true;
  bool over = false;
  bool pressed = false;
};

// Being disabled shows before the pointer does, and the pointer before the press.
ColorBGRA PlateColor(const PlateLook& look, ColorBGRA disabledColor);

ColorBGRA PlateTextColor(bool pressed);

// Fills a rectangle of logical pixels, its corners round by 3.
void DrawPlate(ImageBuffer& buffer, const Rect& rect, ColorBGRA color, const Rect& clip);
