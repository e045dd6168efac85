// Catches ramps that depart from the stored ones by a bit, and indices and writes outside of them.
#include "gradient/GradientRamp.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "StoredMap.h"
#include "gradient/GradientRecord.h"
#include "gradient/GradientView.h"
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
  constexpr uint8_t kFillers[] = {0x00, 0x7F, 0xC9, 0xFE, 0xFF};
  for (const uint8_t filler : kFillers) {
    EXPECT_TRUE(RebuildsThePlainRampAndNoMore(StoredMap(filler))) << int{filler};
  }
}

struct RampCase {
  const char* what;
  std::vector<Stop> stops;
  std::vector<std::pair<int, float>> expectedRed;
};

TEST(RebuildRamp, GivesTheEntriesWorkedOutByHand) {
  const RampCase kCases[] = {
      {"flat ends",
       {{25, 0, 0, 0}, {154, 1, 0, 0}},
       {{0, 0}, {26, 0}, {90, 0.5F}, {154, 1}, {200, 1}}},
      {"hard edge", {{99, 0, 0, 0}, {99, 1, 0, 0}}, {{99, 0}, {100, 1}, {200, 1}}},
      {"neighbours", {{10, 0, 0, 0}, {11, 1, 0, 0}, {19, 2, 0, 0}}, {{10, 0}, {11, 1}, {15, 1.5F}}},
      // Single-precision sums of 1/199, whose rounding no product of step and distance has.
      {"sums",
       {{0, 0, 0, 0}, {200, 1, 0, 0}},
       {{1, 0}, {100, 0x1.FD6D36p-2F}, {200, 0x1.00001Cp0F}}},
  };
  for (const RampCase& c : kCases) {
    StoredMap map(c.stops);
    GradientView view(map.Record());
    RebuildRamp(view);
    for (const auto& [entry, red] : c.expectedRed) {
      EXPECT_EQ(view.colorMapRed[entry], red) << c.what << ", entry " << entry;
    }
  }
}

TEST(RampIndex, IsTruncatedInSinglePrecisionAndStaysWithinTheRamp) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  constexpr std::pair<float, int32_t> kHeights[] = {
      {0.0F, 200},          {1.0F, 0},      {-0.5F, 200},
      {1.0F / 80.0F, 198},   // 197 in double precision
      {33.0F / 80.0F, 117},  // 118 in double precision
      {-kInfinity, 200},    {kInfinity, 0}, {std::numeric_limits<float>::quiet_NaN(), 0},
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
