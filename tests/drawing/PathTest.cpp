// Catches shapes whose outline goes astray, and curves and arcs cut in the wrong places.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "drawing/Arc.h"
#include "drawing/Bezier3.h"
#include "drawing/PathBuilder.h"

namespace {

// Commands and points as one row of numbers.
std::vector<double> ListOf(PathBuilder& path) {
  constexpr size_t kPoints[] = {0, 1, 1, 3, 2, 0, 0};
  std::vector<double> list;
  uint32_t command = kEnd;
  PathPoint point;
  path.Rewind();
  while (path.ReadCommand(command)) {
    list.push_back(command);
    for (size_t i = 0; i < kPoints[command] && path.ReadPoint(point); ++i) {
      list.insert(list.end(), {point.x, point.y});
    }
  }
  return list;
}

TEST(PathBuilder, ARoundRectGoesClockwiseAndTurnsEachCornerAsAsked) {
  PathBuilder path;
  path.LineTo({1, 1});
  path.SetRoundRect({10, 20, 50, 40}, 4, true, false, false, true);
  EXPECT_EQ(ListOf(path), (std::vector<double>{1, 14, 20, 2, 46, 20, 2,  50, 20, 2, 50, 24,  //
                                               2, 50, 36, 4, 46, 36, 46, 40,                 //
                                               2, 14, 40, 2, 10, 40, 2,  10, 36,             //
                                               2, 10, 24, 4, 14, 24, 14, 20, 5}));
  path.SetRoundRect({10, 20, 50, 40}, 4, false, true, true, false);
  EXPECT_EQ(ListOf(path), (std::vector<double>{1, 14, 20, 2, 46, 20, 4,  46, 24, 50, 24,  //
                                               2, 50, 36, 2, 50, 40, 2,  46, 40,          //
                                               2, 14, 40, 4, 14, 36, 10, 36,              //
                                               2, 10, 24, 2, 10, 20, 2,  14, 20, 5}));
}

TEST(PathBuilder, ARoundTriangleIsCutByItsAngles) {
  PathBuilder path;
  // A right angle at the origin: 2 x 0.5 / sin(45 degrees) is the root of 2.
  path.SetRoundTriangle({0, 0}, {30, 0}, {0, 40}, 2);
  const std::vector<double> list = ListOf(path);
  const double cut = std::sqrt(2.0);
  ASSERT_EQ(list.size(), 3U + 3 * (3 + 7) + 1);
  const std::vector<double> corner = {2, 0, cut, 3, 0, 0.44 * cut, 0.44 * cut, 0, cut, 0, 2};
  for (size_t i = 0; i < corner.size(); ++i) EXPECT_NEAR(list[3 + i], corner[i], 1e-12) << i;
  // 30, 40, 50: at (0, 40) the half angle's sine is the root of 1/10.
  EXPECT_NEAR(list[1], 0, 1e-12);
  EXPECT_NEAR(list[2], 40 - std::sqrt(10.0), 1e-12);
  EXPECT_EQ((std::vector<double>{list[1], list[2]}),
            (std::vector<double>(list.end() - 3, list.end() - 1)))
      << "it ends on its start";

  for (const double radius : {0.0, 3.0}) {
    path.SetRoundTriangle({5, 5}, {5, 5}, {5, 5}, radius);
    for (const double value : ListOf(path)) EXPECT_TRUE(value <= 5) << value;
  }
}

struct Collector : Bezier3 {
  std::vector<PathPoint> points;
  void AddFlattenedPoint(const PathPoint& point) override { points.push_back(point); }
};

PathPoint OnCurve(const Cubic& curve, double t) {
  const double u = 1 - t;
  const auto mix = [&](double a, double b, double c, double d) {
    return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
  };
  return {mix(curve[0].x, curve[1].x, curve[2].x, curve[3].x),
          mix(curve[0].y, curve[1].y, curve[2].y, curve[3].y)};
}

double Extent(const PathPoint& a, const PathPoint& b) {
  return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y));
}

TEST(Bezier3, ChordsLieOnTheCurveAndNoneIsLongerThanTold) {
  const Cubic curve = {{{3, 4}, {60, -20}, {-40, 50}, {31, 17}}};
  Collector flat;
  flat.Flatten(curve, 0.5, 10);
  PathPoint last = curve[0];
  double t = 0;
  for (const PathPoint& point : flat.points) {
    EXPECT_LE(Extent(last, point), 0.5);
    // The next halving of the curve that this is the end of.
    while (t < 1 && Extent(OnCurve(curve, t), point) > 1e-9) t += 1.0 / 1024;
    ASSERT_LT(Extent(OnCurve(curve, t), point), 1e-9);
    last = point;
  }
  EXPECT_EQ(last, curve[3]);
  EXPECT_LT(flat.points.size(), 1024U);
  flat.points.clear();
  flat.Flatten({{{0, 0}, {1e6, 0}, {0, 1e6}, {1e6, 1e6}}}, 0.5, 10);
  EXPECT_EQ(flat.points.size(), 1024U);
  flat.points.clear();
  flat.Flatten({{{7, 7}, {90, 7}, {7, 90}, {7.5, 7}}}, 0.5, 10);
  EXPECT_EQ(flat.points.size(), 1U) << "the chord alone is looked at";
}

struct ArcCase {
  const char* what;
  PathPoint start;
  PathPoint center;
  PathPoint end;
  double sweep;
  int32_t steps;
};
constexpr double kQuarter = 1.5707963267948966;
constexpr ArcCase kArcCases[] = {
    {"a quarter, half of 7.85 pixels", {5, 0}, {0, 0}, {0, 5}, kQuarter, 4},
    {"the short way across the angle of pi", {-5, 1}, {0, 0}, {-5, -1}, 0.3947911196997615, 1},
    {"and back", {-5, -1}, {0, 0}, {-5, 1}, -0.3947911196997615, 1},
    {"a growing radius counts by the larger", {14, 3}, {4, 3}, {4, 23}, kQuarter, 16},
    {"all in one place", {4, 3}, {4, 3}, {4, 3}, 0, 0},
    {"only outward", {5, 3}, {4, 3}, {90, 3}, 0, 0},
    {"a bound for the largest", {1e9, 0}, {0, 0}, {0, 1e9}, kQuarter, 65536},
};

TEST(Arc, GoesTheShortWayInStepsOfTwoPixels) {
  for (const ArcCase& test : kArcCases) {
    const Arc arc = MakeArc(test.start, test.center, test.end);
    EXPECT_NEAR(arc.sweep, test.sweep, 1e-12) << test.what;
    ASSERT_EQ(arc.steps, test.steps) << test.what;
    const double first = std::hypot(test.start.x - test.center.x, test.start.y - test.center.y);
    const double last = std::hypot(test.end.x - test.center.x, test.end.y - test.center.y);
    for (int32_t i = 1; i <= arc.steps; ++i) {
      const PathPoint point = PointOfArc(arc, i);
      const double radius = std::hypot(point.x - test.center.x, point.y - test.center.y);
      ASSERT_NEAR(radius, first + (last - first) * i / arc.steps, 1e-6) << test.what;
    }
    if (arc.steps == 0) continue;
    EXPECT_LT(Extent(PointOfArc(arc, arc.steps), test.end), 1e-5) << test.what;
  }
}

}  // namespace
