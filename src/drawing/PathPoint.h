// A place on a path, in pixels.
#pragma once

struct PathPoint {
  double x = 0;
  double y = 0;

  friend bool operator==(const PathPoint&, const PathPoint&) = default;
};
