// Turns the edges of polygons into crossings with the rows of samples.
#pragma once

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

  // Adds the crossings of all edges in the rows of `bounds`. From the last point to the first there
  // is no edge: the polygon ends on its start. Throws as CrossingRows::Add does, and where the
  // path's polygons have more edges than can be drawn.
  void AddPolygon(const Polygon& polygon, const Rect& bounds, CrossingRows& rows);

 private:
  void AddEdge(const Point& from, const Point& to, const Rect& bounds, CrossingRows& rows);
  double StepAlong(double x, double step, int64_t count);

  int64_t stepsLeft = 0;
  int64_t edgesLeft = 0;
};
