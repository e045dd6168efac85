// Catches a falloff that forgets, overshoots or clamps, and a scale that takes the wrong ends.
#include "analysis/OutputStage.h"

#include "AnalysisHost.h"

namespace {

TEST(OutputStage, EachFalloffShapesASeriesInItsWay) {
  struct SeriesCase {
    const char* what;
    FalloffChoice falloff;
    PF_Fixed seconds;
    std::array<double, 5> raws;
    std::array<double, 5> shaped;
  };
  const double e = std::exp(std::log(0.05) / 5);  // 5 % is left after five keyframes
  const PF_Fixed half = kFixedOne / 2;
  const SeriesCase kCases[] = {
      {"instant", kFalloffInstant, half, {1, 0, 0.5, 0, 1}, {1, 0, 0.5, 0, 1}},
      {"linear", kFalloffLinear, half, {1, 0, 0, 0.9, 0}, {1, 0.8, 0.6, 0.9, 0.7}},
      {"linear to the floor", kFalloffLinear, half, {0.5, 0, 0, 0, 0}, {0.5, 0.3, 0.1, 0, 0}},
      {"exponential", kFalloffExponential, half, {1, 0, 0, 0.9, 0}, {1, e, e * e, 0.9, e * 0.9}},
      {"integrate", kFalloffIntegrate, half, {0.5, 0.5, 0, -1, 0.5}, {0.5, 1, 1, 1, 1.5}},
      {"exponential in no time", kFalloffExponential, 0, {1, 0, 0.5, 0, 1}, {1, 0, 0.5, 0, 1}},
  };
  const AnalysisHost host;
  for (const SeriesCase& c : kCases) {
    TestParameters params;
    params.At(1, kRangeFalloff).pd.value = c.falloff;
    params.At(1, kRangeFalloffTime).fd.value = c.seconds;
    FalloffState state = MakeFalloffState(&host.in_data, params, 1, 1000, 100);
    for (size_t i = 0; i < c.raws.size(); ++i) {
      EXPECT_NEAR(FalloffStep(state, c.raws[i]), c.shaped[i], 1e-14) << c.what << ", " << i;
    }
  }
}

TEST(OutputStage, TheScaleIsThatOfThePopupAndOfTheSlidersForCustomOnly) {
  struct ScaleCase {
    int32_t choice;
    double atZero, atThree;  // an integrated value reaches 3: nothing holds it
  };
  constexpr ScaleCase kCases[] = {{1, 0, 300},  {2, 0, 3},      {3, -1, 5},
                                  {4, 0, 1080}, {5, -180, 900}, {kOutputCustom, 20.5, -71.75},
                                  {0, 0, 300},  {7, 0, 300}};
  for (const ScaleCase& c : kCases) {
    TestParameters params;
    params.At(2, kRangeOutputMinMax).pd.value = c.choice;
    params.At(2, kRangeMin).fd.value = kFixedOne * 41 / 2;
    params.At(2, kRangeMax).fd.value = -kFixedOne * 41 / 4;
    const OutputScale scale = ResolveOutputScale(params, 2);
    EXPECT_EQ(KeyframeValue(scale, 0.0), c.atZero) << c.choice;
    EXPECT_EQ(KeyframeValue(scale, 3.0), c.atThree) << c.choice;
  }
}

}  // namespace
