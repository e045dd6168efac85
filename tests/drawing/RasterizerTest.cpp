// Catches shapes that cover too little or too much, spill over their bounds or their clip, or scale
// and mix as the picture doesn't.
#include "drawing/Rasterizer.h"

#include <AllocationCount.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <vector>

#include "PathPainting.h"
#include "drawing/Compositing.h"
#include "drawing/SharedPainter.h"

namespace {

struct Corner {
  int64_t x;
  int64_t y;
};
using Corners = std::vector<Corner>;

// The winding of polygons around the middle of a sample, in whole numbers. `tie` is set where the
// middle lies on an edge: rounded steps may put it on either side.
int32_t WindingAt(const std::vector<Corners>& polygons, int64_t column, int64_t row, bool& tie) {
  int32_t winding = 0;
  for (const Corners& corners : polygons) {
    for (size_t i = 0; i < corners.size(); ++i) {
      Corner upper = corners[i];
      Corner lower = corners[(i + 1) % corners.size()];
      const int32_t direction = upper.y < lower.y ? 1 : -1;
      if (direction < 0) std::swap(upper, lower);
      if (row < upper.y || row >= lower.y) continue;
      const int64_t side = (2 * column + 1 - 2 * upper.x) * (lower.y - upper.y) -
                           (2 * row + 1 - 2 * upper.y) * (lower.x - upper.x);
      if (side > 0) winding += direction;
      tie = tie || side == 0;
    }
  }
  return winding;
}

constexpr int32_t kWidth = 20;
constexpr int32_t kHeight = 15;

// Coordinates of corners are halves, which each grid but the coarsest holds exactly. Truncation
// takes those left of and above the picture one sample inward.
int64_t SampleOf(int32_t halves, int32_t samples) {
  const int32_t sample = halves * samples / 2;
  return sample < 0 ? sample + 1 : sample;
}

TEST(Rasterizer, CoversWhatTheSamplesOfAPixelSay) {
  constexpr std::array<int32_t, 5> kSamples = {1, 2, 4, 8, 16};
  std::mt19937 random(20);
  int32_t compared = 0;
  for (int32_t round = 0; round < 120; ++round) {
    const int32_t quality = 1 + round % 4;
    const int32_t samples = kSamples[static_cast<size_t>(quality)];
    PathBuilder path;
    std::vector<Corners> polygons(2);
    for (Corners& corners : polygons) {
      std::vector<PathPoint> points;
      for (int32_t i = 0; i < 5; ++i) {
        const auto x = static_cast<int32_t>(random() % 70) - 15;
        const auto y = static_cast<int32_t>(random() % 60) - 15;
        points.push_back({x / 2.0, y / 2.0});
        corners.push_back({SampleOf(x, samples), SampleOf(y, samples)});
      }
      AddPolygon(path, points);
    }
    const std::vector<int32_t> coverage = CoverageOf(path, kWidth, kHeight, 0, quality);
    for (int32_t pixel = 0; pixel < kWidth * kHeight; ++pixel) {
      bool tie = false;
      int32_t inside = 0;
      for (int32_t i = 0; i < samples * samples; ++i) {
        const int32_t column = pixel % kWidth * samples + i % samples;
        const int32_t row = pixel / kWidth * samples + i / samples;
        inside += WindingAt(polygons, column, row, tie) != 0 ? 1 : 0;
      }
      if (tie) continue;
      ++compared;
      ASSERT_EQ(coverage[static_cast<size_t>(pixel)],
                std::min(inside * 256 / (samples * samples), 255))
          << "round " << round << ", pixel " << pixel % kWidth << ", " << pixel / kWidth;
    }
  }
  EXPECT_GT(compared, 25000);
}

// On a picture of 8 x 6; `hollow` is what a frame leaves free.
struct AlignedCase {
  const char* what;
  Rect rect;
  double lineWidth;
  Rect hollow;
};
constexpr AlignedCase kAlignedCases[] = {
    {"inside", {2, 1, 6, 5}, 0, {}},
    {"one pixel", {3, 3, 4, 4}, 0, {}},
    {"up to the right and the bottom edge", {5, 4, 8, 6}, 0, {}},
    {"more than the picture", {-3, -2, 11, 9}, 0, {}},
    {"a frame", {1, 1, 7, 6}, 1, {2, 2, 6, 5}},
    {"a frame on the picture's edges", {0, 0, 8, 6}, 2, {2, 2, 6, 4}},
    {"a frame to the outside", {3, 2, 5, 4}, -1, {3, 2, 5, 4}},
};

bool IsInside(const Rect& rect, int32_t x, int32_t y) {
  return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

TEST(Rasterizer, WholePixelsAreCoveredWhollyAndNoOthers) {
  for (const AlignedCase& test : kAlignedCases) {
    PathBuilder path;
    path.SetRoundRect(test.rect, 0, true, true, true, true);
    const std::vector<int32_t> coverage = CoverageOf(path, 8, 6, test.lineWidth);
    for (int32_t i = 0; i < 48; ++i) {
      const int32_t x = i % 8;
      const int32_t y = i / 8;
      // To the outside there are no joins: the corners of the band are cut off.
      if (test.lineWidth < 0 && (x < 3 || x >= 5) && (y < 2 || y >= 4)) continue;
      const Rect whole = test.lineWidth < 0 ? Rect{2, 1, 6, 5} : test.rect;
      const bool covered = IsInside(whole, x, y) && !IsInside(test.hollow, x, y);
      EXPECT_EQ(coverage[static_cast<size_t>(i)], covered ? 255 : 0)
          << test.what << " at " << x << ", " << y;
    }
  }
}

// The edge goes down in one shape and up in the other. Its height in samples is a power of two, so
// that both walk it in exact steps.
TEST(Rasterizer, NeighboursThatShareAnEdgeLeaveNoGap) {
  std::mt19937 random(4);
  std::uniform_real_distribution<double> place(0, 20);
  for (int32_t round = 0; round < 50; ++round) {
    const PathPoint top = {place(random), 0};
    const PathPoint middle = {place(random), 8};
    const PathPoint bottom = {place(random), 16};
    PathBuilder left;
    AddPolygon(left, {{0, 0}, top, middle, bottom, {0, 16}});
    PathBuilder right;
    AddPolygon(right, {{20, 16}, bottom, middle, top, {20, 0}});
    const std::vector<int32_t> a = CoverageOf(left, 20, 16);
    const std::vector<int32_t> b = CoverageOf(right, 20, 16);
    for (size_t i = 0; i < a.size(); ++i) {
      ASSERT_EQ(a[i] + b[i], a[i] == 255 || b[i] == 255 ? 255 : 256) << "round " << round;
    }
  }
}

// An edge's rows above and below the picture take part in its rounding.
TEST(Rasterizer, AShorterPictureShowsTheSameRows) {
  std::mt19937 random(5);
  for (int32_t round = 0; round < 300; ++round) {
    std::vector<PathPoint> corners;
    for (int32_t i = 0; i < 5; ++i) {
      corners.push_back(
          {static_cast<double>(random() % 160) / 8, static_cast<double>(random() % 400) / 8});
    }
    PathBuilder path;
    AddPolygon(path, corners);
    std::vector<int32_t> tall = CoverageOf(path, 20, 60);
    tall.resize(20 * 7);
    ASSERT_EQ(CoverageOf(path, 20, 7), tall) << "round " << round;
  }
}

// The last point is taken for the first, and a point that is there twice bends no line.
TEST(Rasterizer, APolygonComesBackToItsStart) {
  const std::vector<PathPoint> corners = {{2, 3}, {17, 2}, {17, 2}, {15, 14}};
  for (const double lineWidth : {0.0, 1.5}) {
    PathBuilder plain;
    AddPolygon(plain, {{2, 3}, {17, 2}, {15, 14}});
    PathBuilder doubled;
    AddPolygon(doubled, corners);
    EXPECT_EQ(CoverageOf(doubled, 20, 16, lineWidth), CoverageOf(plain, 20, 16, lineWidth));
  }
  PathBuilder open;
  open.MoveTo(corners[0]);
  for (const PathPoint& corner : {corners[1], corners[3], PathPoint{6, 15}}) open.LineTo(corner);
  open.ClosePath();
  PathBuilder closed;
  AddPolygon(closed, {corners[0], corners[1], corners[3]});
  EXPECT_EQ(CoverageOf(open, 20, 16), CoverageOf(closed, 20, 16));
}

// Two quarters of a disc of radius 8 and two triangles of 32 pixels.
TEST(Rasterizer, CurvesAndArcsGoOnFromWhereTheLastOneEnded) {
  PathBuilder path;
  path.MoveTo({10, 2});
  path.CubicTo({12, 4}, {16, 8}, {18, 10});
  path.ArcTo({10, 10}, {10, 18});
  path.ArcTo({10, 10}, {2, 10});
  path.LineTo({10, 2});
  path.ClosePath();
  double area = 0;
  for (const int32_t coverage : CoverageOf(path, 20, 20)) area += coverage / 255.0;
  EXPECT_NEAR(area, 164.5, 2);
}

TEST(CrossingRows, KeepsEqualCrossingsInTheirOrder) {
  CrossingRows rows;
  std::mt19937 random(8);
  for (const int32_t count : {0, 1, 2, 3, 7, 64, 1000}) {
    rows.Reset(2);
    std::vector<std::array<int32_t, 2>> expected;
    for (int32_t i = 0; i < count; ++i) {
      const auto x = static_cast<int32_t>(random() % 30) - 15;
      rows.Add(1, x, i);
      expected.push_back({x, i});
    }
    std::ranges::sort(expected);
    std::vector<std::array<int32_t, 2>> got;
    for (const Crossing* crossing = rows.Sorted(1); crossing != nullptr;
         crossing = crossing->next) {
      got.push_back({crossing->x, crossing->winding});
    }
    EXPECT_EQ(got, expected) << count;
    EXPECT_EQ(rows.Sorted(0), nullptr);
  }
}

TEST(Rasterizer, AStrokeStaysWithinAClockwiseShape) {
  for (const double radius : {0.0, 1.0, 3.0, 6.5}) {
    for (const double lineWidth : {0.25, 1.0, 2.5}) {
      PathBuilder path;
      path.SetRoundRect({2, 3, 20, 18}, radius, true, true, true, true);
      const std::vector<int32_t> shape = CoverageOf(path, 24, 20);
      const std::vector<int32_t> stroke = CoverageOf(path, 24, 20, lineWidth);
      for (size_t i = 0; i < shape.size(); ++i) {
        // Corners of the band stand on samples, so that an edge may lie one sample off: 8 of 64.
        ASSERT_LE(stroke[i], shape[i] == 0 ? 0 : shape[i] + 32) << radius << ", " << lineWidth;
      }
    }
  }
}

TEST(Rasterizer, ScaleTwoDrawsTheShapeOfTwiceTheSize) {
  ImageBuffer scaled;
  scaled.Allocate(80, 60, false);
  scaled.SetScale(2.0F);
  scaled.SetScaleAware(true);
  ImageBuffer plain;
  plain.Allocate(80, 60, false);
  const Rect clip = {4, 2, 39, 27};
  const Rect doubledClip = {8, 4, 78, 54};
  for (const double lineWidth : {0.0, 1.0}) {
    PathBuilder path;
    path.SetRoundRect({3, 5, 37, 22}, 3, true, true, false, true);
    Rect bounds;
    SharedRasterizer().DrawPath(path, scaled, kInk, 200, false, &clip, &bounds, lineWidth);
    path.SetRoundRect({6, 10, 74, 44}, 6, true, true, false, true);
    Rect doubledBounds;
    SharedRasterizer().DrawPath(path, plain, kInk, 200, false, &doubledClip, &doubledBounds,
                                lineWidth * 2);
    EXPECT_TRUE(SamePixels(scaled, plain));
    EXPECT_EQ(doubledBounds, (Rect{8, 10, 75, 45}));
    EXPECT_EQ(bounds, (Rect{4, 5, 38, 23}));
  }
}

// Expected from the coverage alone, pixel by pixel.
TEST(Rasterizer, MixesByCoverageAndOpacityWithinTheClipAndReportsWhatItChanged) {
  std::mt19937 random(6);
  for (int32_t round = 0; round < 150; ++round) {
    PathBuilder path = RandomPath(random);
    const double lineWidth = round % 3 == 0 ? 1.5 : 0;
    const bool alphaOnly = round % 5 == 0;
    constexpr std::array<int32_t, 6> kOpacities = {0, 1, 128, 255, 256, 1000};
    const int32_t opacity = kOpacities[random() % kOpacities.size()];
    const auto edge = [&] { return static_cast<int32_t>(random() % 50) - 5; };
    const Rect clip = {edge(), edge(), edge(), edge()};
    const std::vector<int32_t> coverage = CoverageOf(path, 40, 30, lineWidth);
    ImageBuffer before;
    before.Allocate(40, 30, false);
    for (int32_t i = 0; i < 1200; ++i) {
      before.Row(i / 40)[i % 40] =
          ColorBGRA(static_cast<uint32_t>(random()) | (random() % 2 * 0xFF000000U));
    }
    ImageBuffer after(before);
    Rect bounds = {1, 2, 3, 4};
    SharedRasterizer().DrawPath(path, after, kInk, opacity, alphaOnly, &clip, &bounds, lineWidth);
    for (int32_t i = 0; i < 1200; ++i) {
      const int32_t x = i % 40;
      const int32_t y = i / 40;
      const int32_t covered = coverage[static_cast<size_t>(i)];
      const int32_t alpha = opacity < 256 ? covered * opacity / 256 : covered;
      ColorBGRA expected = before.Row(y)[x];
      if (alphaOnly) {
        expected.alpha = static_cast<uint8_t>(alpha);
      } else {
        CompositePixel(expected, kInk, alpha);
      }
      if (!IsInside(bounds, x, y)) {
        expected = before.Row(y)[x];
        ASSERT_TRUE(covered == 0 || !IsInside(clip, x, y)) << "out bounds, round " << round;
      }
      ASSERT_EQ(after.Row(y)[x], expected) << "round " << round << " at " << x << ", " << y;
    }
    ASSERT_TRUE(IsEmpty(bounds) || Intersection(bounds, clip) == bounds) << "round " << round;
  }
}

TEST(Rasterizer, DrawingAgainAllocatesNothing) {
  ImageBuffer picture;
  picture.Allocate(306, 130, false);
  std::mt19937 random(7);
  PathBuilder path = RandomPath(random);
  const auto draw = [&] {
    for (const double lineWidth : {0.0, 1.0}) {
      SharedPath().SetRoundRect(picture.Bounds(), 3, true, true, true, true);
      SharedRasterizer().DrawPath(SharedPath(), picture, kInk, 128, false, nullptr, nullptr,
                                  lineWidth);
      SharedRasterizer().DrawPath(path, picture, kInk, 256, false, nullptr, nullptr, lineWidth);
    }
  };
  draw();
  const int64_t before = AllocationCount();
  draw();
  EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
