// Catches settings, keyframes or records that a project loses, and a broken project that is lost.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/WorkbenchRun.h"

namespace {

class ProjectCommand : public WorkbenchRun {
 protected:
  nlohmann::json Parameters(std::vector<std::string> settings) const {
    settings.insert(settings.begin(), {"params", "--json", "--project", "p.json"});
    return nlohmann::json::parse(Run(settings).out);
  }
  static std::vector<size_t> Greyed(const nlohmann::json& parameters) {
    std::vector<size_t> indices;
    for (const nlohmann::json& entry : parameters) {
      if (entry.at("greyed")) indices.push_back(entry.at("index"));
    }
    return indices;
  }
  std::string Project() const { return Read(folder.Path() / "p.json"); }
};

TEST_F(ProjectCommand, KeepsWhatWasSetAndGreysWhatIsOfNoUse) {
  const nlohmann::json fresh = Parameters({});
  EXPECT_EQ(fresh.size(), 64U);
  EXPECT_EQ(Greyed(fresh), (std::vector<size_t>{15, 16, 25, 27, 28, 33, 34, 35, 36, 37, 38,
                                                39, 40, 45, 46, 47, 48, 49, 50, 51, 52, 56}));
  const nlohmann::json set =
      Parameters({"--set", "Quantize=on", "--set", "Use Comp fps=off", "--set", "20=off", "--set",
                  "32=on", "--set", "36=Linear", "--set", "38=Custom", "--set", "Scale=2.25"});
  EXPECT_EQ(Greyed(set),
            (std::vector<size_t>{21, 22, 23, 24, 25, 26, 27, 28, 45, 46, 47, 48, 49, 50, 51, 52}));
  EXPECT_EQ(set[4].at("value"), "2.25");
  EXPECT_EQ(Parameters({}), set);
}

TEST_F(ProjectCommand, KeepsKeyframesAndEveryByteOfTheRecord) {
  Apply("--project p.json");
  EXPECT_EQ(nlohmann::json::parse(Project()).at("keyframes").at("Range 1/Output 1").size(), 30U);
  // Bytes 8 to 31 are values that any number may stand in.
  const std::string digits = "00112233445566778899aabbccddeeff0102030405060708";
  constexpr std::string_view kRecord = R"("record": ")";
  std::string project = Project();
  project.replace(project.find(kRecord) + kRecord.size() + 16, digits.size(), digits);
  folder.Write("p.json", project);
  EXPECT_EQ(Run({"params", "--project", "p.json", "--record", "r"}).status, 0);
  EXPECT_EQ(Project(), project);
  EXPECT_EQ(Read(folder.Path() / "r").substr(8, 4), std::string("\x00\x11\x22\x33", 4));
}

TEST_F(ProjectCommand, RefusesABrokenProjectAndLeavesItAsItWas) {
  constexpr std::pair<const char*, const char*> kChanges[] = {
      {"{", ""},
      {"workbench-project", "project"},
      {R"("version": 1)", R"("version": 2)"},
      {R"("record": ")", R"("record": "0)"},
      {R"("record": ")", R"("record": "gg)"},
      {"Channel", "Chanel"},
      {R"("Left")", R"("Middle")"},
      {R"("Left")", "7"},
      {R"("tick": 0)", R"("tick": 1e300)"},
      {R"("tick": 0)", R"("tick": 18446744073709551615)"},
      {R"("scale": 3000)", R"("scale": 0)"},
  };
  Apply("--project p.json");
  const std::string good = Project();
  for (const auto& [from, to] : kChanges) {
    std::string broken = good;
    const size_t place = good.find(from);
    ASSERT_NE(place, std::string::npos) << from;
    folder.Write("p.json", broken.replace(place, std::string(from).size(), to));
    const Outcome outcome = Run({"params", "--project", "p.json"});
    EXPECT_EQ(outcome.status, 1) << to;
    EXPECT_TRUE(outcome.err.starts_with("workbench: p.json: ")) << outcome.err << to;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(outcome.out, "") << to;
    EXPECT_EQ(Project(), broken) << to;
  }
}

}  // namespace
