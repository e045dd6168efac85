// Places in a picture or a panel, in whole pixels.
#pragma once

#include <algorithm>
#include <cstdint>

struct Point {
  int32_t x = 0;
  int32_t y = 0;

  friend bool operator==(const Point&, const Point&) = default;
};

// Right and bottom are exclusive.
struct Rect {
  int32_t left = 0;
  int32_t top = 0;
  int32_t right = 0;
  int32_t bottom = 0;

  friend bool operator==(const Rect&, const Rect&) = default;
};

constexpr bool IsEmpty(const Rect& rect) {
  return rect.right <= rect.left || rect.bottom <= rect.top;
}

// What both have in common; an empty rectangle, of whatever edges, where that is nothing.
constexpr Rect Intersection(const Rect& a, const Rect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}
