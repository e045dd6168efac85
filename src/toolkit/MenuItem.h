// A row of a menu, as the layout has made it.
#pragma once

#include <cstdint>
#include <string>

#include "drawing/Fonts.h"

// Logical pixels.
struct MenuItem {
  bool enabled = true;
  bool marked = false;  // has a sign before its text
  int32_t padX = 10;
  int32_t padY = 4;
  int32_t top = 0;  // below the list's upper margin
  int32_t textWidth = 0;
  int32_t height = 0;
  const Font* font = nullptr;
  std::string label;

  // A line between groups of rows; it can't be hit.
  bool IsSeparator() const { return label == "-"; }
};
