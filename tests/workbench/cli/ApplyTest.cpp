// Catches keyframes that a user gets at other times, of another side, or differently in each file.
#include <array>
#include <charconv>
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/WorkbenchRun.h"

namespace {

constexpr const char* kHeader = "range,tick,scale,seconds,value\n";

std::string Text(double value, auto... form) {
  std::array<char, 40> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value, form...).ptr};
}

class ApplyCommand : public WorkbenchRun {
 protected:
  nlohmann::json Keys(const std::string& options) const {
    return nlohmann::json::parse(Apply(options, "o.json")).at("ranges").at(0).at("keys");
  }
};

TEST_F(ApplyCommand, WritesTheSameKeyframesInEveryForm) {
  const std::string options = "--fps 20 --work-area 0.2:0.7";
  const nlohmann::json keys = Keys(options);
  std::string csv = kHeader;
  std::string lines;
  for (int n = 0; n < 10; ++n) {
    const nlohmann::json& key = keys.at(static_cast<size_t>(n));
    const auto value = key.at("value").get<double>();
    EXPECT_EQ(key.at("tick"), 400 + 100 * n);
    EXPECT_EQ(key.at("seconds"), (4 + n) / 20.0);
    csv += "1," + key.at("tick").dump() + ",2000," + key.at("seconds").dump() + ',' +
           Text(value, std::chars_format::general, 17) + '\n';
    lines += '\t' + std::to_string(4 + n) + '\t' + Text(value) + "\t\n";
  }
  EXPECT_EQ(Apply(options), csv);
  EXPECT_NE(Apply(options, "o.txt").find("\tFrame\t\n" + lines + '\n'), std::string::npos) << lines;
  EXPECT_GT(keys[9].at("value"), keys[0].at("value").get<double>() + 1.0) << "the sound swells";
}

TEST_F(ApplyCommand, TakesTheSameKeyframesWhereverTheLayerStands) {
  const std::string csv = Apply("--fps 20 --work-area 0.2:0.7");
  EXPECT_EQ(Apply("--fps 20 --layer-start -0.5 --work-area -0.3:0.2"), csv);
  EXPECT_EQ(Apply("--fps 20 --layer-start 3 --work-area 3.2:3.7"), csv);
  EXPECT_EQ(Apply("--layer-start 3 --record r1"), Apply("--record r2"));
  EXPECT_EQ(Read(folder.Path() / "r1").size(), 3112U);
  EXPECT_EQ(Read(folder.Path() / "r1"), Read(folder.Path() / "r2"));
}

TEST_F(ApplyCommand, HearsSilenceBeforeTheSoundAndOnTheSilentSide) {
  const nlohmann::json keys = Keys("--work-area -1:1");
  EXPECT_EQ(keys.at(0).at("tick"), -3000);
  for (const nlohmann::json& key : keys) {
    const int tick = key.at("tick");
    EXPECT_TRUE(tick >= -300 || key.at("value") == 0.0) << key;
    EXPECT_TRUE(tick <= 1500 || key.at("value") > 1.0) << key;
  }
  for (const nlohmann::json& key : Keys("--set Channel=Right")) EXPECT_EQ(key.at("value"), 0.0);
}

TEST_F(ApplyCommand, SaysWhatItMadeUnlessItIsToBeQuiet) {
  std::vector<std::string> command = {"apply", "a.wav", "--out", "o.csv"};
  EXPECT_NE(Run(command).out.find("Output 1         30 "), std::string::npos);
  command.insert(command.end(), {"--work-area", "1:1"});
  EXPECT_NE(Run(command).out.find("work area is empty"), std::string::npos);
  EXPECT_EQ(Read(folder.Path() / "o.csv"), kHeader);
  command.emplace_back("--quiet");
  EXPECT_EQ(Run(command).out, "");
}

}  // namespace
