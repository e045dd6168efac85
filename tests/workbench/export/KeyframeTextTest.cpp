// Catches keyframes that are lost, rounded, out of order, or on a wrong frame in a written file.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <locale>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "workbench/Failure.h"
#include "workbench/export/KeyframeClipboardText.h"
#include "workbench/export/KeyframeCsv.h"
#include "workbench/export/KeyframeJson.h"

namespace {

struct CommaForPoint : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};

// Ranges 1 and 3 of a run from before time 0, with values of any size: zeros of both signs, the
// ends of what a double holds, and 500 bit patterns.
KeyframeTable AnyTable() {
  std::mt19937_64 random(20250611);
  std::vector<double> values = {0.0, -0.0, 0.1, -100000.0, 5e-324, 1.7976931348623157e308};
  while (values.size() < 506) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) values.push_back(value);
  }
  KeyframeTable table{.scale = 2997, .step = 99, .width = 1920, .height = 1080};
  for (size_t i = 0; i < values.size(); ++i) {
    const int32_t tick = 99 * static_cast<int32_t>(i / 2) - 20000001;
    table.rows.push_back({i % 2 == 0 ? 1 : 3, tick, 2997, values[i]});
  }
  return table;
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::istringstream stream(text);
  std::vector<std::string> parts;
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

void ExpectSame(double actual, double expected) {
  EXPECT_EQ(std::bit_cast<uint64_t>(actual), std::bit_cast<uint64_t>(expected))
      << actual << " for " << expected;
}

void ExpectReadsAs(const std::string& text, double expected) {
  double value = NAN;
  const std::from_chars_result end = std::from_chars(text.data(), text.data() + text.size(), value);
  EXPECT_EQ(*end.ptr, '\0') << text;
  ExpectSame(value, expected);
}

TEST(KeyframeCsv, ReadsBackAsTheSameBitsUnderAnyLocale) {
  const KeyframeTable table = AnyTable();
  const std::locale before = std::locale::global(std::locale({}, new CommaForPoint));
  const std::vector<std::string> lines = Split(KeyframesAsCsv(table), '\n');
  std::locale::global(before);
  ASSERT_EQ(lines.size(), table.rows.size() + 1);
  EXPECT_EQ(lines[0], "range,tick,scale,seconds,value");
  for (size_t i = 0; i < table.rows.size(); ++i) {
    const KeyframeRow& row = table.rows[i];
    const std::string times = std::to_string(row.range) + ',' + std::to_string(row.tick) + ",2997,";
    ASSERT_TRUE(lines[i + 1].starts_with(times)) << lines[i + 1] << " for " << times;
    const std::vector<std::string> numbers = Split(lines[i + 1].substr(times.size()), ',');
    ASSERT_EQ(numbers.size(), 2U) << lines[i + 1];
    ExpectReadsAs(numbers[0], row.tick / 2997.0);
    ExpectReadsAs(numbers[1], row.value);
  }
  const std::string few = KeyframesAsCsv({.rows = {{2, 1, 100000, 0.1}}});
  EXPECT_NE(few.find("\n2,1,100000,0.00001,0.10000000000000001\n"), std::string::npos) << few;
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
    EXPECT_EQ(key.at("tick"), table.rows[i].tick);
    ExpectSame(key.at("seconds").get<double>(), table.rows[i].tick / 2997.0);
    ExpectSame(key.at("value").get<double>(), table.rows[i].value);
  }
}

TEST(KeyframeClipboardText, IsWhatTheHostPastes) {
  const KeyframeTable table{
      .scale = 3000,
      .step = 100,
      .width = 640,
      .height = 360,
      .rows = {{3, -50, 3000, 100000.0}, {1, -50, 3000, 0.00001}, {1, -150, 3000, -0.5}}};
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
  struct FrameCase {
    int32_t first, last;
    const char *firstFrame, *lastFrame;
  };
  constexpr FrameCase kCases[] = {
      // at 100 ticks a frame
      {0, 100, "0", "1"},
      {99, 199, "0", "1"},
      {100, 200, "1", "2"},
      {-1, 99, "-1", "0"},
      {-199, -99, "-2", "-1"},
      {-200, 0, "-2", "0"},
      {-2147483647 - 1, 2147483552, "-21474837", "21474835"},
  };
  for (const FrameCase& c : kCases) {
    const std::string text = KeyframesAsClipboardText(
        {.scale = 3000, .step = 100, .rows = {{1, c.first, 3000, 7.0}, {2, c.last, 3000, 8.0}}});
    for (const std::string& line :
         {c.firstFrame + std::string("\t7"), c.lastFrame + std::string("\t8")}) {
      EXPECT_NE(text.find("\n\t" + line + "\t\n"), std::string::npos) << c.first << '\n' << text;
    }
  }
}

TEST(KeyframeClipboardText, RefusesAKeyframeThatStandsOnNoFrame) {
  const KeyframeRow first{1, 0, 3000, 0.0};
  const KeyframeTable tables[] = {
      {.scale = 3000, .step = 100, .rows = {first, {1, 150, 3000, 0.0}}},
      {.scale = 3000, .step = 100, .rows = {first, {1, 100, 2997, 0.0}}},
      {.scale = 3000, .step = 0, .rows = {first}}};
  for (const KeyframeTable& table : tables) {
    EXPECT_THROW(KeyframesAsClipboardText(table), JobFailure) << table.step;
  }
}

}  // namespace
