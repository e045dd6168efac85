// Turns the edges of polygons into crossings with the rows of samples.
#pragma once

#include <cstddef>
#include <cstdint>

#include "drawing/Crossings.h"
#include "drawing/Polygon.h"
#include "drawing/Rect.h"

// An edge holds the rows from its upper end up to, not including, its lower end, so that edges that
// meet share no row. In a row it stands at its x in the row's middle, rounded.
class PolygonScanner {
 public:
  // A new path: all it may ask for is there again.
  void BeginPath();

  // Counts edges that are about to be gone over. A polygon may be closed again and again and is
  // drawn each time, so that a short path could ask for any number of them. Throws
  // App::ExceptionInfo kOutOfMemory where the path has had all its edges.
  void TakeEdges(size_t count);

  // Adds the crossings of all edges in the rows of `bounds`. From the last point to the first there
  // is no edge: the polygon ends on its start. Throws as CrossingRows::Add does.
  void AddPolygon(const Polygon& polygon, const Rect& bounds, CrossingRows& rows);

 private:
  void AddEdge(const Point& from, const Point& to, const Rect& bounds, CrossingRows& rows);
  double StepAlong(double x, double step, int64_t count);

  int64_t stepsLeft = 0;
  int64_t edgesLeft = 0;
};
