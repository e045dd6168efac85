// Tells which moves of the mouse are none of the user's.
#pragma once

#include "drawing/Rect.h"

class MouseMoveFilter {
 public:
  virtual ~MouseMoveFilter() = default;
  // position   of the pointer, on the screen
  virtual bool Matches(const Point& position) const = 0;
};
