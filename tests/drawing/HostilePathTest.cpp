// Catches paths that hang, take all memory, write outside the picture or draw what isn't a shape.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "PathPainting.h"
#include "drawing/Rasterizer.h"
#include "engine/ExceptionInfo.h"

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Step {
  uint32_t command;
  std::vector<PathPoint> points;
};

PathBuilder PathOf(const std::vector<Step>& steps) {
  PathBuilder path;
  for (const Step& step : steps) path.Append(step.command, step.points.data(), step.points.size());
  return path;
}

const std::vector<Step> kSquare = {{kMoveTo, {{1, 1}}},
                                   {kLineTo, {{5, 1}}},
                                   {kLineTo, {{5, 5}}},
                                   {kLineTo, {{1, 5}}},
                                   {kLineTo, {{1, 1}}}};

std::vector<Step> SquareThen(const std::vector<Step>& more) {
  std::vector<Step> steps = kSquare;
  steps.insert(steps.end(), more.begin(), more.end());
  return steps;
}

struct Nothing {
  const char* what;
  std::vector<Step> steps;
  int32_t opacity = 256;
  double lineWidth = 0;
};

TEST(HostilePath, WhatIsNoShapeLeavesThePictureAsItWas) {
  const Nothing cases[] = {
      {"no command", {}},
      {"only points that no command takes", {{kClose, {{1, 1}, {5, 1}, {5, 5}, {1, 1}}}}},
      {"not closed", kSquare},
      {"closed past the end", SquareThen({{kEnd, {}}, {kClose, {}}})},
      {"closed past an unknown command", SquareThen({{77, {}}, {kClose, {}}})},
      {"a curve that lacks a point", SquareThen({{kCubicTo, {{1, 2}, {3, 4}}}, {kClose, {}}})},
      {"moved away before it closes", SquareThen({{kMoveTo, {{9, 9}}}, {kClose, {}}})},
      {"a triangle of three points",
       {{kMoveTo, {{1, 1}}}, {kLineTo, {{9, 1}}}, {kLineTo, {{1, 9}}}, {kClose, {}}}},
      {"a line without a width", {{kMoveTo, {{1, 1}}}, {kLineTo, {{9, 1}}}, {kClose, {}}}},
      {"a point with a width", {{kMoveTo, {{4, 4}}}, {kClose, {}}}, 256, 3},
      {"negative opacity", SquareThen({{kClose, {}}}), -1},
      {"a width that is no number", SquareThen({{kClose, {}}}), 256, kNan},
      {"an endless width", SquareThen({{kClose, {}}}), 256, kInfinity},
  };
  for (const Nothing& test : cases) {
    ImageBuffer picture;
    picture.Allocate(12, 12, false);
    PathBuilder path = PathOf(test.steps);
    Rect bounds = {1, 2, 3, 4};
    Rasterizer(3).DrawPath(path, picture, kInk, test.opacity, false, nullptr, &bounds,
                           test.lineWidth);
    ImageBuffer blank;
    blank.Allocate(12, 12, false);
    EXPECT_TRUE(SamePixels(picture, blank)) << test.what;
    EXPECT_EQ(bounds, Rect()) << test.what;
  }
}

// Shapes whose edges end at the ends of int32 or past them, and what they cover of 16 x 4 pixels.
TEST(HostilePath, CoordinatesFarOutsideCoverAsNearOnes) {
  struct Case {
    const char* what;
    std::vector<PathPoint> corners;
    int32_t left;
    int32_t right;
  };
  const Case cases[] = {
      {"all", {{-1e300, -1e300}, {1e300, -1e300}, {1e300, 1e300}, {-1e300, 1e300}}, 0, 16},
      {"endless",
       {{-kInfinity, -kInfinity}, {kInfinity, -9}, {kInfinity, kInfinity}, {-9, 1e99}},
       0,
       16},
      {"the left half", {{8, -1e9}, {8, 1e9}, {-1e9, 1e9}, {-1e9, -1e9}}, 0, 8},
      {"the right half", {{8, 1e9}, {8, -1e9}, {1e9, -1e9}, {1e9, 1e9}}, 8, 16},
      {"slanting from far above", {{6, -268e6}, {10, 268e6}, {99, 268e6}, {99, -268e6}}, 8, 16},
      {"no numbers are 0", {{kNan, kNan}, {4, kNan}, {4, 9}, {kNan, 9}}, 0, 4},
      {"beyond the right edge", {{16, -9}, {1e10, -9}, {1e10, 9}, {16, 9}}, 16, 16},
  };
  for (const Case& test : cases) {
    PathBuilder path;
    AddPolygon(path, test.corners);
    const std::vector<int32_t> coverage = CoverageOf(path, 16, 4);
    for (int32_t i = 0; i < 64; ++i) {
      const bool covered = i % 16 >= test.left && i % 16 < test.right;
      ASSERT_EQ(coverage[static_cast<size_t>(i)], covered ? 255 : 0)
          << test.what << ", pixel " << i;
    }
  }
}

constexpr int32_t kMany = 100000;

void Draw(Rasterizer& rasterizer, ImageBuffer& picture, PathBuilder& path, double lineWidth) {
  rasterizer.DrawPath(path, picture, kInk, 256, false, nullptr, nullptr, lineWidth);
}

// Each would run for minutes or take gigabytes if it were let.
TEST(HostilePath, WhatOnePathMayAskForHasAnEnd) {
  PathBuilder arcs;
  PathBuilder farEdges;
  for (int32_t i = 0; i < kMany; ++i) {
    arcs.MoveTo({1e9, i * 1.0});
    arcs.ArcTo({0, 0}, {-1e9, 1});
    AddPolygon(farEdges, {{0, -1e9}, {1, 9}, {2, -1e9}, {3, 9}});
  }
  ImageBuffer picture;
  picture.Allocate(16, 1, false);
  Rasterizer rasterizer(3);
  EXPECT_NO_THROW(Draw(rasterizer, picture, arcs, 0));
  EXPECT_NO_THROW(Draw(rasterizer, picture, arcs, 1e9));
  EXPECT_NO_THROW(Draw(rasterizer, picture, farEdges, 0));
}

// A comb of more crossings than there may be, and a polygon that is closed too often.
TEST(HostilePath, TooManyEdgesThrowAndLeaveThePicture) {
  PathBuilder comb;
  PathBuilder again;
  comb.MoveTo({0, 0});
  again.MoveTo({-9, -9});
  for (int32_t i = 0; i < kMany; ++i) {
    comb.LineTo({i % 16 * 1.0, i % 2 == 0 ? 64.0 : 0.0});
    again.LineTo({-9.0 - i % 7, -9.0 - i % 3});
  }
  comb.ClosePath();
  for (int32_t i = 0; i < kMany; ++i) again.ClosePath();
  Rasterizer rasterizer(3);
  for (PathBuilder* path : {&comb, &again}) {
    for (const double lineWidth : {0.0, 1.0}) {
      ImageBuffer picture;
      picture.Allocate(16, 64, false);
      try {
        Draw(rasterizer, picture, *path, lineWidth);
        ADD_FAILURE() << "nothing was thrown";
      } catch (const App::ExceptionInfo& failure) {
        EXPECT_EQ(failure.code, -108);
      }
      EXPECT_EQ(picture.Row(3)[3], ColorBGRA());
      PathBuilder square = PathOf(SquareThen({{kClose, {}}}));
      Draw(rasterizer, picture, square, 0);
      EXPECT_EQ(picture.Row(3)[3], kInk) << "the next path is drawn as ever";
    }
  }
}

}  // namespace
