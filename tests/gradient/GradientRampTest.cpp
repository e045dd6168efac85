// Catches ramps that depart from the stored ones by a bit, and indices and writes outside of them.
#include "gradient/GradientRamp.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "StoredMap.h"
#include "gradient/RampIndex.h"

namespace {

// One entry on its own: finds the segment that holds it and adds up from that segment's start.
float PlainEntry(const uint8_t* positions, const float* components, int entry) {
  if (positions[0] == 255) return 0.0F;
  int filled = std::min<int>(positions[0], 200);
  if (entry <= filled) return components[0];
  int stop = 1;
  for (; stop < 50 && positions[stop] != 255; ++stop) {
    const int length = std::min<int>(positions[stop], 200) - filled;
    if (length < 2) continue;
    if (entry <= filled + length) {
      float sum = components[stop - 1];
      const float step = (components[stop] - sum) / static_cast<float>(length - 1);
      for (int k = filled + 1; k < entry; ++k) sum += step;
      return sum;
    }
    filled += length;
  }
  return components[stop - 1];
}

// Every entry is the plain one, bit for bit, and no other byte of the map or around it changes.
bool RebuildsThePlainRampAndNoMore(StoredMap map) {
  StoredMap expected = map;
  GradientRecord& plain = expected.Record();
  for (int k = 0; k < 201; ++k) {
    plain.colorMapRed[k] = PlainEntry(plain.stopPosition, plain.stopRed, k);
    plain.colorMapGreen[k] = PlainEntry(plain.stopPosition, plain.stopGreen, k);
    plain.colorMapBlue[k] = PlainEntry(plain.stopPosition, plain.stopBlue, k);
  }
  GradientView view(map.Record());
  RebuildRamp(view);
  return map == expected;
}

TEST(RebuildRamp, EqualsASlowPlainRampWhateverTheBytes) {
  EXPECT_TRUE(rc::check([] { return RebuildsThePlainRampAndNoMore(StoredMap(*AnyStops())); }));
  for (const int filler : {0x00, 0xC9, 0xFF}) {
    EXPECT_TRUE(RebuildsThePlainRampAndNoMore(StoredMap(static_cast<uint8_t>(filler)))) << filler;
  }
}

TEST(RebuildRamp, AddsUpItsStepsInSinglePrecision) {
  StoredMap map(std::vector<Stop>{{0, 0, 0, 0}, {200, 1, 0, 0}});
  GradientView view(map.Record());
  RebuildRamp(view);
  // Sums of 1/199, whose rounding no product of step and distance has.
  EXPECT_EQ(view.colorMapRed[1], 0.0F);
  EXPECT_EQ(view.colorMapRed[100], 0x1.FD6D36p-2F);
  EXPECT_EQ(view.colorMapRed[200], 0x1.00001Cp0F);
}

TEST(RampIndex, IsTruncatedInSinglePrecisionAndStaysWithinTheRamp) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  // In double precision 1/80 gives 197, and 33/80 gives 118.
  constexpr std::pair<float, int32_t> kHeights[] = {
      {0.0F, 200},  {1.0F / 80.0F, 198}, {33.0F / 80.0F, 117}, {1.0F, 0},
      {-0.5F, 200}, {-kInfinity, 200},   {kInfinity, 0},       {kNaN, 0},
  };
  for (const auto& [height, index] : kHeights) {
    EXPECT_EQ(RampIndexAlongHeight(height), index) << height;
  }
  for (int32_t band = 0; band < 32; ++band) {
    EXPECT_EQ(RampIndexAcrossBands(band), (200 * band + 16) / 32) << band;
  }
  EXPECT_EQ(RampIndexAcrossBands(std::numeric_limits<int32_t>::max()), 200);
  EXPECT_EQ(RampIndexAcrossBands(std::numeric_limits<int32_t>::min()), 0);
}

}  // namespace
