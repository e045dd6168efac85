// The one move that a scrubber itself causes when it puts the pointer back to the screen's centre.
#pragma once

#include "toolkit/MouseMoveFilter.h"

class NumericScrubberMouseMoveFilter : public MouseMoveFilter {
 public:
  explicit NumericScrubberMouseMoveFilter(const Point& screenPosition) : position(screenPosition) {}

  bool Matches(const Point& moved) const override { return moved == position; }

 private:
  Point position;
};
