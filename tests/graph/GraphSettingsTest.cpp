// Catches a setting that is read from another parameter's row or in another unit.
#include "graph/GraphSettings.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/analysis/AnalysisHost.h"

namespace {

TEST(GraphSettings, EachBoxTurnsOneThingOn) {
  constexpr std::array<int32_t, 9> kBoxes = {
      kQuantize,
      RangeParameter(0, kRangeActive),
      RangeParameter(1, kRangeActive),
      RangeParameter(2, kRangeActive),
      kLogarithmicScale,
      kShowSpectrum,
      kShowSelectionRanges,
      kShowOutput,
      kShowColormap,
  };
  for (size_t on = 0; on < kBoxes.size(); ++on) {
    TestParameters params;
    params.At(kBoxes[on]).bd.value = 1;
    const GraphSettings s = ReadGraphSettings(params);
    std::array<bool, kBoxes.size()> expected{};
    expected[on] = true;
    EXPECT_EQ((std::array{s.quantize, s.active[0], s.active[1], s.active[2], s.logarithmicScale,
                          s.spectrum, s.selectionRanges, s.output, s.colormap}),
              expected)
        << "box " << on;
  }
}

TEST(GraphSettings, NumbersKeepTheirRangeAndUnit) {
  TestParameters params;
  params.At(kGradient).pd.value = kGradientVertical;
  params.At(kQuantizeValue).sd.value = -7;
  for (int32_t range = 0; range < kRangeCount; ++range) {
    params.At(range, kRangeFalloff).pd.value = kFalloffLinear + range;
    params.At(range, kRangeFalloffTime).fd.value = (range + 1) * kFixedOne + kFixedOne / 4;
  }
  const GraphSettings settings = ReadGraphSettings(params);
  EXPECT_EQ(settings.gradient, kGradientVertical);
  EXPECT_EQ(settings.quantizeValue, -7);
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const RangeFalloff& falloff = settings.falloffs[static_cast<size_t>(range)];
    EXPECT_EQ(falloff.falloff, kFalloffLinear + range);
    EXPECT_EQ(falloff.falloffTime, range + 1.25);
  }
}

// With 0.01 in double precision the first three would be the nearest numbers to 0.2, 0.23 and 0.8.
TEST(GraphSettings, FillIsAPercentInSinglePrecision) {
  struct FillCase {
    PF_Fixed fixed = 0;
    float fill = 0.0F;
  };
  constexpr FillCase kCases[] = {{20 * kFixedOne, 0.199999988F},
                                 {23 * kFixedOne, 0.229999989F},
                                 {80 * kFixedOne, 0.799999952F},
                                 {100 * kFixedOne, 1.0F},
                                 {-kFixedOne, -0.00999999978F}};
  for (const FillCase& c : kCases) {
    TestParameters params;
    params.At(kFillSegment).fd.value = c.fixed;
    EXPECT_EQ(ReadGraphSettings(params).fillSegment, c.fill) << c.fixed;
  }
}

}  // namespace
