// Where the pointer stood, and which keys were down, at the last event of the mouse.
#pragma once

#include "drawing/Rect.h"
#include "toolkit/ControlTypes.h"

struct PanelPointer {
  Point point;  // in the coordinates of the host's events
  Modifiers modifiers;
};
