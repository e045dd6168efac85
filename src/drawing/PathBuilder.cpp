// Building the list of a path's commands.
#include "drawing/PathBuilder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

#include "engine/ExceptionInfo.h"

namespace {

// Where a corner's curve leaves its two edges, and the control points between.
struct RoundCorner {
  PathPoint enter;
  PathPoint control1;
  PathPoint control2;
  PathPoint leave;
};

struct Direction {
  double x = 0;
  double y = 0;
};

// A direction of length 0 between places that coincide or aren't finite.
Direction DirectionOf(const PathPoint& from, const PathPoint& to) {
  const double x = to.x - from.x;
  const double y = to.y - from.y;
  const double length = std::hypot(x, y);
  if (!(length > 0) || !std::isfinite(length)) return {};
  return {x / length, y / length};
}

PathPoint Along(const PathPoint& start, const Direction& direction, double distance) {
  return {start.x + direction.x * distance, start.y + direction.y * distance};
}

RoundCorner CutCorner(const PathPoint& before, const PathPoint& corner, const PathPoint& after,
                      double radius) {
  constexpr double kControlShare = 0.44;
  const Direction back = DirectionOf(corner, before);
  const Direction onward = DirectionOf(corner, after);
  const double angle = std::atan2(std::abs(back.x * onward.y - back.y * onward.x),
                                  back.x * onward.x + back.y * onward.y);
  double distance = (radius * 0.5) / std::sin(angle / 2);
  if (!std::isfinite(distance)) distance = 0;
  return {Along(corner, back, distance), Along(corner, back, kControlShare * distance),
          Along(corner, onward, kControlShare * distance), Along(corner, onward, distance)};
}

// Keeps growth by doubling, which reserving the exact size would undo.
template <typename Value>
void MakeRoom(std::vector<Value>& list, size_t more) {
  if (list.capacity() - list.size() < more) {
    list.reserve(std::max(list.capacity() * 2, list.size() + more));
  }
}

}  // namespace

void PathBuilder::Clear() {
  commands.clear();
  points.clear();
  Rewind();
}

void PathBuilder::MoveTo(const PathPoint& point) {
  Append(kMoveTo, &point, 1);
}

void PathBuilder::LineTo(const PathPoint& point) {
  Append(kLineTo, &point, 1);
}

void PathBuilder::CubicTo(const PathPoint& control1, const PathPoint& control2,
                          const PathPoint& end) {
  const std::array<PathPoint, 3> all = {control1, control2, end};
  Append(kCubicTo, all.data(), all.size());
}

void PathBuilder::ArcTo(const PathPoint& center, const PathPoint& end) {
  const std::array<PathPoint, 2> all = {center, end};
  Append(kArcTo, all.data(), all.size());
}

void PathBuilder::ClosePath() {
  Append(kClose, nullptr, 0);
}

void PathBuilder::SetRoundRect(const Rect& rect, double radius, bool topLeft, bool topRight,
                               bool bottomLeft, bool bottomRight) {
  Clear();
  const double left = rect.left;
  const double top = rect.top;
  const double right = rect.right;
  const double bottom = rect.bottom;
  const auto turn = [this](bool isRound, const PathPoint& center, const PathPoint& corner,
                           const PathPoint& end) {
    if (isRound) {
      ArcTo(center, end);
    } else {
      LineTo(corner);
      LineTo(end);
    }
  };
  MoveTo({left + radius, top});
  LineTo({right - radius, top});
  turn(topRight, {right - radius, top + radius}, {right, top}, {right, top + radius});
  LineTo({right, bottom - radius});
  turn(bottomRight, {right - radius, bottom - radius}, {right, bottom}, {right - radius, bottom});
  LineTo({left + radius, bottom});
  turn(bottomLeft, {left + radius, bottom - radius}, {left, bottom}, {left, bottom - radius});
  LineTo({left, top + radius});
  turn(topLeft, {left + radius, top + radius}, {left, top}, {left + radius, top});
  ClosePath();
}

void PathBuilder::SetRoundTriangle(const PathPoint& a, const PathPoint& b, const PathPoint& c,
                                   double radius) {
  Clear();
  const std::array<RoundCorner, 3> corners = {
      CutCorner(c, a, b, radius), CutCorner(a, b, c, radius), CutCorner(b, c, a, radius)};
  MoveTo(corners[2].leave);
  for (const RoundCorner& corner : corners) {
    LineTo(corner.enter);
    CubicTo(corner.control1, corner.control2, corner.leave);
  }
  ClosePath();
}

void PathBuilder::Append(uint32_t command, const PathPoint* commandPoints, size_t count) {
  try {
    MakeRoom(commands, 1);
    MakeRoom(points, count);
  } catch (const std::bad_alloc&) {
    throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  }
  commands.push_back(command);
  points.insert(points.end(), commandPoints, commandPoints + count);
}

void PathBuilder::Rewind() {
  nextCommand = 0;
  nextPoint = 0;
}

bool PathBuilder::ReadCommand(uint32_t& command) {
  if (nextCommand == commands.size()) return false;
  command = commands[nextCommand++];
  return true;
}

bool PathBuilder::ReadPoint(PathPoint& point) {
  if (nextPoint == points.size()) return false;
  point = points[nextPoint++];
  return true;
}
