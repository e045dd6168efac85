// Colours and rectangles of a row that draws itself on the host's surface.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

// 65535 is full.
struct Color16 {
  uint16_t red = 0;
  uint16_t green = 0;
  uint16_t blue = 0;
};

// Pixels of the host's panel.
struct Rect16 {
  int16_t top = 0;
  int16_t left = 0;
  int16_t bottom = 0;
  int16_t right = 0;
};

// The nearest coordinate that a Rect16 holds.
constexpr int16_t ToCoordinate16(int64_t coordinate) {
  using Limits = std::numeric_limits<int16_t>;
  return static_cast<int16_t>(std::clamp<int64_t>(coordinate, Limits::min(), Limits::max()));
}
