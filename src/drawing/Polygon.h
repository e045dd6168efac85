// A polygon whose corners stand on the grid of samples.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>

#include "drawing/Rect.h"

// Has room for kRoomStep points from the beginning, so that ordinary shapes allocate nothing.
class Polygon {
 public:
  static constexpr size_t kRoomStep = 4000;
  // What all polygons of a path may have together: far more than any shape needs. It bounds the
  // time that one path takes.
  static constexpr size_t kMostPathPoints = size_t{1} << 17;

  // Right and bottom are one past the last corner, and wider than int32 therefore.
  struct Extent {
    int64_t left = std::numeric_limits<int64_t>::max();
    int64_t top = std::numeric_limits<int64_t>::max();
    int64_t right = std::numeric_limits<int64_t>::min();
    int64_t bottom = std::numeric_limits<int64_t>::min();
  };

  // Throws App::ExceptionInfo kOutOfMemory.
  Polygon();

  // Empties the polygon; the path may have kMostPathPoints from here on.
  void BeginPath();
  // Empties the polygon.
  void Clear();

  // Adds the sample truncate(samples * x + 0.5), truncate(samples * y + 0.5). Where there is no
  // memory to grow, or the path has all its points, nothing is added.
  void Add(double x, double y, int32_t samples);

  // Whether Add does nothing until the next path begins.
  bool IsPathFull() const { return pathPoints >= kMostPathPoints; }

  // Makes the last point the first one; there must be a point.
  void CloseOnFirst() { points[count - 1] = points[0]; }

  size_t Count() const { return count; }
  const Point& operator[](size_t index) const { return points[index]; }
  const Extent& GetExtent() const { return extent; }

 private:
  struct Free {
    void operator()(Point* block) const;
  };

  bool Grow();

  std::unique_ptr<Point[], Free> points;
  size_t room = 0;
  size_t count = 0;
  size_t pathPoints = 0;
  Extent extent;
};
