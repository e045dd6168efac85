// Catches curves whose points get lost or out of order, samples that don't follow them, and any
// write outside a curve's arrays.
#include "gradient/CurvePoints.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "gradient/CurveChain.h"
#include "gradient/CurveEdits.h"
#include "tests/gradient/StoredCurve.h"

namespace {

constexpr int32_t kHeight = 100;

struct InsertCase {
  const char* what;
  std::vector<float> points;
  float x;
  int32_t slot;  // 255: refused
};

TEST(InsertPoint, KeepsItsDistanceExceptBehindTheLastPoint) {
  std::vector<float> full(25);
  for (size_t i = 0; i < 25; ++i) full[i] = static_cast<float>(8 * i);
  const InsertCase cases[] = {
      {"empty", {}, 50, 0},
      {"in front", {50, 100}, 45, 0},
      {"4 in front", {50, 100}, 46, 255},
      {"between", {50, 100}, 54, 1},
      {"3 behind", {50, 100}, 53, 255},
      {"behind the last, however close", {50, 100}, 97, 2},
      {"a 26th", full, 4, 255},
      {"a 26th behind the last", full, 200, 255},
  };
  for (const InsertCase& c : cases) {
    StoredCurve curve(c.points);
    const StoredCurve before = curve;
    EXPECT_EQ(InsertPoint(curve.View(), c.x, 2.0F), c.slot) << c.what;
    std::vector<float> expected = c.points;
    if (c.slot != 255) expected.insert(expected.begin() + c.slot, c.x);
    EXPECT_EQ(curve.Points(), expected) << c.what;
    if (c.slot == 255) {
      EXPECT_EQ(curve, before) << c.what;
      continue;
    }
    EXPECT_EQ(curve.record.pointY[c.slot], 2.0F) << c.what;
    DeletePoint(curve.View(), c.slot);
    EXPECT_EQ(curve.Points(), c.points) << c.what;
    EXPECT_TRUE(std::equal(before.record.pointY, before.record.pointY + c.points.size(),
                           curve.record.pointY))
        << c.what;
  }
}

TEST(MovePoint, StopsAtItsLastPlaceAndNotAtTheNeighbour) {
  struct MoveCase {
    float to, stays;
  };
  for (const MoveCase& c : {MoveCase{96, 96}, {97, 50}, {4, 4}, {3, 50}, {-900, 50}, {900, 50}}) {
    StoredCurve curve({0, 50, 100});
    MovePoint(curve.View(), 1, c.to, 0.25F);
    EXPECT_EQ(curve.Points(), (std::vector<float>{0, c.stays, 100})) << c.to;
    EXPECT_EQ(curve.record.pointY[1], 0.25F) << c.to;
  }
}

TEST(FlipPoints, TwiceGivesTheListBack) {
  StoredCurve curve({0, 10, 60, 199});
  const StoredCurve before = curve;
  FlipPoints(curve.View());
  EXPECT_EQ(curve.Points(), (std::vector<float>{1, 140, 190, 200}));
  FlipPoints(curve.View());
  EXPECT_EQ(curve, before);
}

struct ChainCase {
  const char* what;
  std::vector<float> points;
  std::vector<float> values;
  int32_t position;
  float expected;   // half way along a segment, from its control points by hand
  float tolerance;  // half of the slope there
};

TEST(RebuildSamples, RunsThroughThePointsWithoutAGap) {
  const std::vector<float> steep = {0.0F, 0.2F, 0.9F, 1.0F};
  const ChainCase cases[] = {
      {"first segment", {0, 40, 100, 200}, steep, 22, 0.0765F, 0.004F},
      {"middle segment", {0, 40, 100, 200}, steep, 68, 0.592F, 0.012F},
      {"last segment rises over the top", {0, 40, 100, 200}, steep, 146, 1.0F, 0.0F},
      {"near points pull less", {0, 5, 100, 200}, {0.0F, 0.5F, 0.5F, 0.5F}, 40, 0.5245F, 0.004F},
      {"two points are none", {0, 200}, {0.0F, 1.0F}, 100, -1.0F, 0.0F},
  };
  for (const ChainCase& c : cases) {
    StoredCurve curve(c.points);
    std::copy(c.values.begin(), c.values.end(), curve.record.pointY);
    std::fill_n(curve.record.samples, 201, -1.0F);
    RebuildSamples(curve.View(), kHeight);
    EXPECT_NEAR(curve.record.samples[c.position], c.expected, c.tolerance) << c.what;
    EXPECT_EQ(std::count(curve.record.samples, curve.record.samples + 201, -1.0F),
              c.points.size() > 2 ? 0 : 201)
        << c.what;
  }
}

TEST(FitCurve, TakesThePointsThatComeClosest) {
  struct FitCase {
    double waves;
    size_t points;
  };
  // A wave that four points can't follow gets eleven; their places are 201 / 10 apart.
  for (const FitCase& c : {FitCase{0.0, 4}, {0.5, 4}, {2.5, 11}}) {
    StoredCurve curve({});
    for (int32_t i = 0; i < 201; ++i) {
      curve.record.samples[i] =
          static_cast<float>(0.5 - 0.5 * std::cos(c.waves * i / 200 * 6.2832));
    }
    const StoredCurve drawn = curve;
    FitCurve(curve.View(), kHeight);
    const std::vector<float> points = curve.Points();
    ASSERT_EQ(points.size(), c.points) << c.waves;
    EXPECT_NEAR(points[1], 201.0 / static_cast<double>(c.points - 1), 0.001) << c.waves;
    EXPECT_EQ(points.back(), 200.0F) << c.waves;
    EXPECT_EQ(curve.record.pointY[c.points - 1], drawn.record.samples[200]) << c.waves;
    for (int32_t i = 0; i < 201; ++i) {
      EXPECT_NEAR(curve.record.samples[i], drawn.record.samples[i], 0.15F) << c.waves << ' ' << i;
    }
  }
}

TEST(SmoothSamples, SpreadsASpikeAndRepeatsTheEnds) {
  for (const bool strong : {false, true}) {
    StoredCurve curve({});
    curve.record.samples[100] = 1.0F;
    curve.record.samples[0] = 1.0F;
    SmoothSamples(curve.View(), strong);
    const int32_t reach = strong ? 5 : 2;
    const float mean = strong ? 1.0F / 11.0F : 0.2F;
    EXPECT_FLOAT_EQ(curve.record.samples[100 - reach], mean);
    EXPECT_FLOAT_EQ(curve.record.samples[100 + reach], mean);
    EXPECT_EQ(curve.record.samples[101 + reach], 0.0F);
    EXPECT_FLOAT_EQ(curve.record.samples[0], mean * static_cast<float>(reach + 1));
    std::fill_n(curve.record.samples, 201, 1.0F);
    SmoothSamples(curve.View(), strong);
    EXPECT_EQ(std::count(curve.record.samples, curve.record.samples + 201, 1.0F), 201);
  }
}

TEST(CurveEdits, AreSafeOnAnyNumbers) {
  EXPECT_TRUE(rc::check([] {
    const auto number = rc::gen::weightedOneOf<float>(
        {{4, rc::gen::map(rc::gen::inRange(0, 201), [](int x) { return static_cast<float>(x); })},
         {1, rc::gen::arbitrary<float>()},
         {1, rc::gen::element(NAN, INFINITY, -INFINITY, 255.0F, 1e30F, -1.0F)}});
    StoredCurve curve({});
    for (float& x : curve.record.pointX) x = *number;
    for (float& y : curve.record.pointY) y = *number;
    for (float& sample : curve.record.samples) sample = *rc::gen::element(NAN, 1e30F, 0.5F, -1.0F);
    const CurveView view = curve.View();
    RC_ASSERT(CountPoints(view) <= 25);
    RebuildSamples(view, *rc::gen::element(0, -5, 1, 100, std::numeric_limits<int32_t>::max()));
    InsertPoint(view, *number, *number);
    MovePoint(view, *rc::gen::inRange(-1, 27), *number, *number);
    DeletePoint(view, *rc::gen::inRange(-1, 27));
    FlipPoints(view);
    FlipSamples(view);
    SmoothSamples(view, *rc::gen::arbitrary<bool>());
    FitCurve(view, *rc::gen::element(0, 1, 100));
    RC_ASSERT(CountPoints(view) >= 4 && CountPoints(view) <= 11);
    RandomizePoints(view, *rc::gen::arbitrary<uint32_t>());
    RC_ASSERT(std::is_sorted(view.pointX, view.pointX + CountPoints(view)));
    RC_ASSERT(curve.GuardsAreWhole());
  }));
}

}  // namespace
