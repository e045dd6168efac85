// Painting of paths for tests: onto small pictures, and by a slow plain way.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "drawing/ImageBuffer.h"
#include "drawing/PathBuilder.h"
#include "drawing/Rasterizer.h"

inline constexpr ColorBGRA kInk(0xFF20A0E0);

// The coverage of each pixel, row by row; lineWidth as DrawPath takes it.
inline std::vector<int32_t> CoverageOf(PathBuilder& path, int32_t width, int32_t height,
                                       double lineWidth = 0, int32_t quality = 3) {
  ImageBuffer picture;
  picture.Allocate(width, height, false);
  Rasterizer(quality).DrawPath(path, picture, kInk, 256, false, nullptr, nullptr, lineWidth);
  std::vector<int32_t> coverage;
  for (int32_t y = 0; y < height; ++y) {
    for (int32_t x = 0; x < width; ++x) coverage.push_back(picture.Row(y)[x].alpha);
  }
  return coverage;
}

inline void AddPolygon(PathBuilder& path, const std::vector<PathPoint>& corners) {
  path.MoveTo(corners[0]);
  for (size_t i = 1; i < corners.size(); ++i) path.LineTo(corners[i]);
  path.LineTo(corners[0]);
  path.ClosePath();
}

// A shape of lines, a curve and an arc anywhere on and around a picture of 40 x 30.
inline PathBuilder RandomPath(std::mt19937& random) {
  std::uniform_real_distribution<double> place(-8, 44);
  const auto point = [&] {
    const double x = place(random);
    return PathPoint{x, place(random)};
  };
  PathBuilder path;
  path.MoveTo(point());
  path.LineTo(point());
  const PathPoint control = point();
  path.CubicTo(control, point(), point());
  path.ArcTo(point(), control);
  path.LineTo(point());
  path.ClosePath();
  return path;
}

inline testing::AssertionResult SamePixels(const ImageBuffer& a, const ImageBuffer& b) {
  for (int32_t y = 0; y < a.Height(); ++y) {
    for (int32_t x = 0; x < a.Width(); ++x) {
      if (a.Row(y)[x] == b.Row(y)[x]) continue;
      return testing::AssertionFailure() << "the pixels at " << x << ", " << y << " differ";
    }
  }
  return testing::AssertionSuccess();
}
