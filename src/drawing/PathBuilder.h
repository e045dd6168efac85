// A shape as a list of strokes of the pen: lines, curves and arcs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "drawing/PathPoint.h"
#include "drawing/Rect.h"

// The values stand in the list of commands as they are. Any other value ends the reading.
enum PathCommand : uint32_t {
  kMoveTo = 1,   // 1 point: starts a new polygon
  kLineTo = 2,   // 1 point
  kCubicTo = 3,  // 3 points: two control points, end
  kArcTo = 4,    // 2 points: centre, end
  kClose = 5,    // no point: finishes the polygon, which is drawn only so
  kEnd = 6,      // no point: nothing after it is read
};

// Whatever appends throws App::ExceptionInfo kOutOfMemory; a command and its points are then left
// out together.
class PathBuilder {
 public:
  // Forgets the shape and keeps the memory.
  void Clear();

  void MoveTo(const PathPoint& point);
  void LineTo(const PathPoint& point);
  void CubicTo(const PathPoint& control1, const PathPoint& control2, const PathPoint& end);
  // The short way round the centre. Where the radius at the end is another one, it changes evenly.
  void ArcTo(const PathPoint& center, const PathPoint& end);
  void ClosePath();

  // Makes the shape a rectangle, clockwise on the screen from the left end of its top. Each corner
  // is round or square; radius 0 makes all of them square.
  void SetRoundRect(const Rect& rect, double radius, bool topLeft, bool topRight, bool bottomLeft,
                    bool bottomRight);

  // Makes the shape a triangle, each corner cut off by a curve that a circle of this radius would
  // about follow. A corner whose edges don't open an angle stays sharp.
  void SetRoundTriangle(const PathPoint& a, const PathPoint& b, const PathPoint& c, double radius);

  // Appends a command as it is, with whatever points it has: a command may lack some of its own.
  void Append(uint32_t command, const PathPoint* commandPoints, size_t count);

  // Reading starts over at the first command.
  void Rewind();
  // Both give false at the end of the list and leave the result alone.
  bool ReadCommand(uint32_t& command);
  bool ReadPoint(PathPoint& point);

 private:
  std::vector<uint32_t> commands;
  std::vector<PathPoint> points;
  size_t nextCommand = 0;
  size_t nextPoint = 0;
};
