// Catches keyframes that are lost, rounded, out of order, or on a wrong frame in a written file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "workbench/Failure.h"
#include "workbench/export/KeyframeClipboardText.h"
#include "workbench/export/KeyframeCsv.h"
#include "workbench/export/KeyframeJson.h"

namespace {

// Ranges 1 and 3 from before time 0; zeros, the ends of what a double holds, 500 bit patterns.
KeyframeTable AnyTable() {
  std::mt19937_64 random(20250611);
  constexpr double kValues[] = {0.0, -0.0, 0.1, -100000.0, 5e-324, 1.7976931348623157e308};
  KeyframeTable table{.scale = 2997, .step = 99, .width = 1920, .height = 1080};
  for (int32_t i = 0; i < 506; ++i) {
    const uint64_t finite = random() & ~(uint64_t{1} << 62U);
    const double value = i < 6 ? kValues[i] : std::bit_cast<double>(finite);
    table.rows.push_back({i % 2 == 0 ? 1 : 3, 99 * (i / 2) - 20000001, 2997, value});
  }
  return table;
}

void ExpectSame(const KeyframeRow& row, int32_t tick, double seconds, double value) {
  EXPECT_EQ(tick, row.tick);
  EXPECT_EQ(seconds, row.tick / 2997.0);
  EXPECT_EQ(std::bit_cast<uint64_t>(value), std::bit_cast<uint64_t>(row.value)) << row.value;
}

TEST(KeyframeCsv, ReadsBackAsTheSameBits) {
  const KeyframeTable table = AnyTable();
  std::istringstream lines(KeyframesAsCsv(table));
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "range,tick,scale,seconds,value");
  for (const KeyframeRow& row : table.rows) {
    KeyframeRow read;
    double seconds = NAN;
    char behind = 0;
    std::getline(lines, line);
    EXPECT_EQ(std::sscanf(line.c_str(), "%d,%d,%u,%lf,%lf%c", &read.range, &read.tick, &read.scale,
                          &seconds, &read.value, &behind),
              5)
        << line;
    EXPECT_TRUE(read.range == row.range && read.scale == row.scale) << line;
    ExpectSame(row, read.tick, seconds, read.value);
  }
  EXPECT_FALSE(std::getline(lines, line));
  EXPECT_EQ(KeyframesAsCsv({.rows = {{2, 1, 100000, 0.1}}}).substr(31),
            "2,1,100000,0.00001,0.10000000000000001\n");
}

TEST(KeyframeJson, HoldsEachRangeWithKeysAndTheSameBits) {
  const KeyframeTable table = AnyTable();
  nlohmann::json document = nlohmann::json::parse(KeyframesAsJson(table));
  std::vector<nlohmann::json> keys;
  for (nlohmann::json& range : document["ranges"]) keys.push_back(std::move(range["keys"]));
  EXPECT_EQ(document, nlohmann::json::parse(R"({"scale": 2997, "step": 99,
      "size": {"width": 1920, "height": 1080},
      "ranges": [{"range": 1, "parameter": "Output 1", "keys": null},
                 {"range": 3, "parameter": "Output 3", "keys": null}]})"));
  ASSERT_EQ(keys[0].size() + keys[1].size(), table.rows.size());
  for (size_t i = 0; i < table.rows.size(); ++i) {
    const nlohmann::json& key = keys[i % 2][i / 2];
    ExpectSame(table.rows[i], key.at("tick"), key.at("seconds"), key.at("value"));
  }
}

TEST(KeyframeClipboardText, IsWhatTheHostPastes) {
  KeyframeTable table{.scale = 3000, .step = 100, .width = 640, .height = 360};
  table.rows = {{3, -50, 3000, 100000.0}, {1, -50, 3000, 0.00001}, {1, -150, 3000, -0.5}};
  EXPECT_EQ(KeyframesAsClipboardText(table),
            "Adobe After Effects 8.0 Keyframe Data\n\n"
            "\tUnits Per Second\t30\n\tSource Width\t640\n\tSource Height\t360\n"
            "\tSource Pixel Aspect Ratio\t1\n\tComp Pixel Aspect Ratio\t1\n\n"
            "Effects\tSlider Control #1\tSlider #2\n\tFrame\t\n"
            "\t-2\t-0.5\t\n\t-1\t0.00001\t\n\n"
            "Effects\tSlider Control #3\tSlider #2\n\tFrame\t\n\t-1\t100000\t\n\n"
            "End of Keyframe Data\n");
}

TEST(KeyframeClipboardText, CountsFramesInWholeStepsFromTimeZero) {
  constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
  for (const int32_t tick : {kLowest, -200, -199, -101, -100, -1, 0, 1, 99, 100}) {
    const std::string text =
        KeyframesAsClipboardText({.scale = 3000, .step = 100, .rows = {{2, tick, 3000, 7.0}}});
    const auto frame = static_cast<int32_t>(std::floor(tick / 100.0));
    EXPECT_THAT(text, testing::HasSubstr("\n\t" + std::to_string(frame) + "\t7\t\n")) << tick;
  }
}

TEST(KeyframeClipboardText, RefusesAKeyframeThatStandsOnNoFrame) {
  KeyframeTable table{.scale = 3000, .step = 100, .rows = {{1, 0, 3000, 0.0}, {1, 150, 3000, 0.0}}};
  EXPECT_THROW(KeyframesAsClipboardText(table), JobFailure);
  table.rows[1] = {1, 100, 2997, 0.0};
  EXPECT_THROW(KeyframesAsClipboardText(table), JobFailure);
}

}  // namespace
