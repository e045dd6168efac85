// Moving, turning and stretching the points of a path.
#pragma once

#include <array>

#include "drawing/PathPoint.h"

// 3 x 3, row by row; the third row holds the translation.
struct Matrix {
  std::array<double, 9> m = {1, 0, 0, 0, 1, 0, 0, 0, 1};

  static constexpr Matrix Scaling(double factor) { return {{factor, 0, 0, 0, factor, 0, 0, 0, 1}}; }

  constexpr PathPoint Transform(const PathPoint& p) const {
    return {p.x * m[0] + p.y * m[3] + m[6], p.x * m[1] + p.y * m[4] + m[7]};
  }
};
