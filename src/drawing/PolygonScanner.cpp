// Walking down and up the edges of a polygon.
#include "drawing/PolygonScanner.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

#include "engine/ExceptionInfo.h"
#include "platform/Truncate.h"

namespace {

// Some tens of milliseconds of each; shapes of a panel need thousands.
constexpr int64_t kMostSteps = int64_t{1} << 24;
constexpr int64_t kMostEdges = int64_t{1} << 22;

}  // namespace

void PolygonScanner::BeginPath() {
  stepsLeft = kMostSteps;
  edgesLeft = kMostEdges;
}

void PolygonScanner::TakeEdges(size_t count) {
  edgesLeft -= static_cast<int64_t>(count);
  if (edgesLeft < 0) {
    throw App::ExceptionInfo{App::kOutOfMemory, "The path has more edges than can be drawn"};
  }
}

void PolygonScanner::AddPolygon(const Polygon& polygon, const Rect& bounds, CrossingRows& rows) {
  for (size_t i = 1; i < polygon.Count(); ++i) AddEdge(polygon[i - 1], polygon[i], bounds, rows);
}

void PolygonScanner::AddEdge(const Point& from, const Point& to, const Rect& bounds,
                             CrossingRows& rows) {
  if (from.y == to.y || std::max(from.y, to.y) <= bounds.top ||
      std::min(from.y, to.y) >= bounds.bottom) {
    return;
  }
  const int32_t direction = from.y < to.y ? 1 : -1;
  const int64_t rowCount = std::abs(int64_t{to.y} - from.y);
  const double step =
      (static_cast<double>(to.x) - static_cast<double>(from.x)) / static_cast<double>(rowCount);
  const int64_t firstRow = direction > 0 ? from.y : int64_t{from.y} - 1;
  const int64_t outside = std::max<int64_t>(
      0, direction > 0 ? bounds.top - firstRow : firstRow - (int64_t{bounds.bottom} - 1));
  const int64_t firstInside = firstRow + direction * outside;
  const int64_t inside = std::min(rowCount - outside, direction > 0 ? bounds.bottom - firstInside
                                                                    : firstInside - bounds.top + 1);
  double x = StepAlong(from.x + step * 0.5, step, outside);
  auto row = static_cast<int32_t>(firstInside);
  for (int64_t i = 0; i < inside; ++i) {
    rows.Add(row, Truncate<int32_t>(x + 0.5), direction);
    x += step;
    row += direction;
  }
}

// The x after `count` rows that aren't wanted. A product isn't the sum of as many steps to the last
// bit, and an edge mustn't change where a part of it leaves the picture; so the steps are made one
// by one. Only a path that comes from far outside has used them up some time and goes on by
// products, or one edge from -2^31 would take seconds.
double PolygonScanner::StepAlong(double x, double step, int64_t count) {
  if (count > stepsLeft) return x + step * static_cast<double>(count);
  stepsLeft -= count;
  for (int64_t i = 0; i < count; ++i) x += step;
  return x;
}
