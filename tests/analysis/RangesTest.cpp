// Catches a selection that covers other bands or levels than its rectangle shows, and a range that
// counts a band too many, divides a peak, or misses its threshold by equality.
#include <limits>
#include <tuple>

#include "AnalysisHost.h"
#include "analysis/GraphArea.h"
#include "analysis/RangeEvaluation.h"
#include "analysis/RangeGeometry.h"

namespace {

constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Bands and levels that the middle range makes of its corners.
std::array<double, 4> Select(std::array<PF_Fixed, 4> corners, int32_t type, int32_t w, int32_t h) {
  TestParameters params;
  PF_PointDef& corner1 = params.At(1, kRangeCorner1).td;
  PF_PointDef& corner2 = params.At(1, kRangeCorner2).td;
  corner1.x_value = corners[0];
  corner1.y_value = corners[1];
  corner2.x_value = corners[2];
  corner2.y_value = corners[3];
  params.At(1, kRangeType).pd.value = type;
  RangeGeometry geometry;
  ComputeRangeGeometry(params, w, h, geometry);
  const auto [firstBand, lastBand] = geometry.bands[1];
  const auto [lowerLevel, upperLevel] = geometry.levels[1];
  return {1.0 * firstBand, 1.0 * lastBand, lowerLevel, upperLevel};
}

TEST(RangeGeometry, BandsAndLevelsAreThoseUnderTheRectangle) {
  struct GeometryCase {
    const char* what;
    std::array<int32_t, 4> pixels;  // corner 1, corner 2
    int32_t type;
    std::array<double, 4> expected;  // firstBand, lastBand, lowerLevel, upperLevel
  };
  constexpr GeometryCase kCases[] = {
      {"as the effect starts", {192, 324, 576, 702}, kTypeAverage, {0, 10, 0.3125, 0.75}},
      {"last pixel of a column", {227, 972, 575, 324}, kTypePeak, {0, 10, 0.0, 0.75}},
      {"first pixel of a column", {228, 972, 1308, 324}, kTypePeak, {1, 31, 0.0, 0.75}},
      {"outside on all sides", {-5, 2000, 9999, -3}, kTypeAverage, {0, 31, 0.0, 1.0}},
      {"trigger at Corner 1", {576, 702, 192, 324}, kTypeTrigger, {0, 10, 0.3125, 0.3125}},
  };
  for (const GeometryCase& c : kCases) {
    std::array<PF_Fixed, 4> corners{};
    for (size_t i = 0; i < 4; ++i) corners[i] = c.pixels[i] * kFixedOne;
    const auto selected = Select(corners, c.type, 1920, 1080);
    for (size_t i = 0; i < 4; ++i) EXPECT_DOUBLE_EQ(selected[i], c.expected[i]) << c.what << i;
  }
  // A column ends where the next begins, to the last fraction of a pixel.
  EXPECT_EQ(Select({228 * kFixedOne - 1, 0, 228 * kFixedOne, 0}, kTypePeak, 1920, 1080)[0], 0.0);
}

TEST(GraphArea, TakesItsFractionsOfAnyFrameTowardZero) {
  const auto [left, right, top, bottom, bandWidth, levelScale] = ComputeGraphArea(-19, -19);
  EXPECT_EQ(std::tuple(left, right, top, bottom), std::tuple(-1, -13, -1, -17));
  EXPECT_EQ(std::tuple(bandWidth, levelScale), std::tuple(-0.375, -1.0 / 16));
  EXPECT_EQ(ComputeGraphArea(kMax, 0).levelScale, 1.0);
}

TEST(RangeGeometry, AnySizeAndCornersGiveBandsOfTheBankOrNoneInWhateverOrder) {
  constexpr PF_Fixed kPlaces[] = {kMin, -1, 0, kFixedOne, 600 * kFixedOne + 7, kMax};
  for (const int32_t size : {kMin, -1920, -19, -1, 0, 1, 2, 3, 10, 1920, kMax}) {
    const GraphArea area = ComputeGraphArea(size, size);
    for (size_t i = 0; i < 1296; ++i) {
      const PF_Fixed x1 = kPlaces[i % 6], y1 = kPlaces[i / 6 % 6];
      const PF_Fixed x2 = kPlaces[i / 36 % 6], y2 = kPlaces[i / 216];
      const auto s = Select({x1, y1, x2, y2}, kTypePeak, size, size);
      ASSERT_EQ(s, Select({x2, y2, x1, y1}, kTypePeak, size, size)) << size;
      ASSERT_EQ(s, Select({x2, y1, x1, y2}, kTypeAverage, size, size)) << size;
      ASSERT_EQ(s[0] >= 0.0 && s[0] <= s[1] && s[1] <= 31.0, area.right > area.left) << size;
      ASSERT_TRUE(0.0 <= s[2] && s[2] <= s[3] && s[3] <= 1.0) << size << ": " << s[2];
    }
  }
}

TEST(RangeEvaluation, EachTypeReducesItsBandsInItsWay) {
  struct ValueCase {
    const char* what;
    int32_t type;
    BandRun bands;
    LevelWindow window;
    double even, odd;  // levels of the bands 0, 2, 4 ... and of the others
    double value;
  };
  constexpr LevelWindow kHalf = {0.25, 0.75};
  constexpr LevelWindow kFlat = {0.5, 0.5};
  constexpr ValueCase kCases[] = {
      {"average: half above, half below", kTypeAverage, {0, 9}, kHalf, 0.8, 0.1, 0.5},
      {"average of three bands", kTypeAverage, {2, 4}, kHalf, 0.375, 0.5, 1.0 / 3},
      {"peak: the farthest", kTypePeak, {0, 31}, kHalf, 0.375, 0.5, 0.5},
      {"levels beyond their range", kTypeAverage, {0, 1}, {0.0, 1.0}, 7.0, -7.0, 0.5},
      {"levels that are no numbers", kTypeAverage, {0, 1}, {0.0, 1.0}, kNaN, 1.0, 0.5},
      {"trigger: two bands at the threshold", kTypeTrigger, {3, 6}, kFlat, 0.5, 0.0, 1.0},
      {"trigger: just below it", kTypeTrigger, {3, 4}, kFlat, 0.4999999999, 0.0, 0.0},
      {"trigger: silence at the lowest", kTypeTrigger, {0, 31}, {0.0, 0.0}, 0.0, 0.0, 1.0},
      {"flat average is a trigger", kTypeAverage, {0, 9}, kFlat, 0.5, 0.1, 1.0},
      {"window upside down", kTypeAverage, {0, 9}, {0.75, 0.25}, 0.8, 0.1, 1.0},
      {"past the last band", kTypePeak, {31, 32}, kHalf, 1.0, 1.0, 0.0},
      {"no graph", kTypePeak, {kMin, kMin}, kHalf, 1.0, 1.0, 0.0},
      {"bands in the wrong order", kTypeAverage, {5, 4}, kHalf, 1.0, 1.0, 0.0},
  };
  size_t active = 0;
  for (const ValueCase& c : kCases) {
    active = (active + 1) % kRangeCount;
    BandArray levels{};
    for (size_t band = 0; band < levels.size(); ++band) levels[band] = band % 2 ? c.odd : c.even;
    TestParameters params;
    params.At(static_cast<int32_t>(active), kRangeActive).bd.value = 1;
    for (int32_t range = 0; range < 3; ++range) params.At(range, kRangeType).pd.value = c.type;
    RangeGeometry geometry;
    geometry.bands.fill(c.bands);
    geometry.levels.fill(c.window);
    std::array<double, kRangeCount> values = {-1.0, -1.0, -1.0};
    EvaluateRanges(nullptr, params, levels, values, 1920, 1080, &geometry);
    std::array<double, kRangeCount> expected{};
    expected[active] = c.value;
    EXPECT_EQ(values, expected) << c.what;
  }
}

}  // namespace
