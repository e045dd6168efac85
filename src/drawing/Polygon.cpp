// Collecting the corners of a polygon.
#include "drawing/Polygon.h"

#include <algorithm>
#include <cstdlib>

#include "engine/ExceptionInfo.h"
#include "platform/Truncate.h"

Polygon::Polygon() {
  if (!Grow()) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
}

void Polygon::BeginPath() {
  Clear();
  pathPoints = 0;
}

void Polygon::Clear() {
  count = 0;
  extent = {};
}

void Polygon::Add(double x, double y, int32_t samples) {
  if (IsPathFull() || (count == room && !Grow())) return;
  const Point point = {Truncate<int32_t>(samples * x + 0.5), Truncate<int32_t>(samples * y + 0.5)};
  points[count] = point;
  ++count;
  ++pathPoints;
  extent.left = std::min<int64_t>(extent.left, point.x);
  extent.top = std::min<int64_t>(extent.top, point.y);
  extent.right = std::max<int64_t>(extent.right, int64_t{point.x} + 1);
  extent.bottom = std::max<int64_t>(extent.bottom, int64_t{point.y} + 1);
}

void Polygon::Free::operator()(Point* block) const {
  std::free(block);
}

bool Polygon::Grow() {
  const size_t wanted = room + kRoomStep;
  // Points are plain data: the system may move them, which it does without a copy where it can.
  auto* grown = static_cast<Point*>(std::realloc(points.get(), wanted * sizeof(Point)));
  if (grown == nullptr) return false;
  static_cast<void>(points.release());
  points.reset(grown);
  room = wanted;
  return true;
}
