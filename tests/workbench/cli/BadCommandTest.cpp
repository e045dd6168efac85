// Catches bad input that ends in a crash, in a wrong exit status, in no clear line, or in a file.
#include <algorithm>

#include "tests/workbench/cli/WorkbenchRun.h"

namespace {

struct BadCase {
  std::vector<std::string> arguments;
  int status;
  const char* says;
};

// The arguments of an apply that would work, and more.
std::vector<std::string> ApplyAnd(std::vector<std::string> more, std::string audio = "a.wav",
                                  std::string out = "o.csv") {
  more.insert(more.begin(), {"apply", std::move(audio), "--out", std::move(out)});
  return more;
}

const BadCase kBadCases[] = {
    {{}, 2, "subcommand is required"},
    {{"apply", "a.wav"}, 2, "--out is required"},
    {ApplyAnd({"--dance"}), 2, "--dance"},
    {ApplyAnd({}, "none.wav"), 1, "none.wav: there is no such file"},
    {ApplyAnd({}, "folder"), 1, "folder: is a directory"},
    {ApplyAnd({}, "text"), 1, "text: can't be read as sound"},
    {ApplyAnd({}, "a.wav", "o.xml"), 2, "has to end in .csv, .json or .txt"},
    {ApplyAnd({}, "a.wav", "none/o.csv"), 1, "the folder none does not exist"},
    {ApplyAnd({"--set", "Loudness=1"}), 2, "no parameter named \"Loudness\""},
    {ApplyAnd({"--set", "Active=on"}), 2, "Several parameters are named \"Active\""},
    {ApplyAnd({"--set", "65=1"}), 2, "the indices run from 1 to 64"},
    {ApplyAnd({"--set", "Scale"}), 2, "--set takes NAME=VALUE"},
    {ApplyAnd({"--set", "Scale=10000.1"}), 2, "Scale takes 0 to 10000"},
    {ApplyAnd({"--set", "Sc\nale=1"}), 2, "named \"Sc?ale\""},
    {ApplyAnd({"--set", "Range 1/Active=off"}), 1, "no range is active"},
    {ApplyAnd({"--work-area", "2:1"}), 2, "ends before it starts"},
    {ApplyAnd({"--work-area", "0:1e300"}), 2, "can't reach so far: 1e+300 s"},
    {ApplyAnd({"--layer-start", "nan"}), 2, "can't reach so far"},
    {ApplyAnd({"--fps", "30/0"}), 2, "--fps takes N or N/D"},
    {ApplyAnd({"--fps", "1/200"}), 1, "a rate of at least 0.01"},
    {ApplyAnd({"--size", "0x1080"}), 2, "--size takes WxH"},
    {ApplyAnd({"--plugin", "none.so"}), 1, "none.so: there is no such plug-in library"},
    {ApplyAnd({"--plugin", "text"}), 1, "text: is not a library that loads here"},
    {ApplyAnd({"--plugin", HOLLOW_LIBRARY}), 1, "has no function EntryPointFunc"},
    {{"decode", "a.wav", "--out", "o.wav"}, 2, "has to end in .pcm"},
    {{"decode", "a.wav", "--out", "none/o.pcm"}, 1, "the folder none does not exist"},
    {ApplyAnd({"--project", "folder"}), 1, "folder: is not a project"},
};

class BadCommand : public WorkbenchRun {};

TEST_F(BadCommand, EndsWithItsStatusOneLineAndNoFile) {
  folder.Write("text", "Not a sound, not a library.\n");
  std::filesystem::create_directory(folder.Path() / "folder");
  for (const BadCase& c : kBadCases) {
    const Outcome outcome = Run(c.arguments);
    EXPECT_EQ(outcome.status, c.status) << c.says;
    EXPECT_NE(outcome.err.find(c.says), std::string::npos) << outcome.err << "for " << c.says;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(outcome.out, "") << c.says;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 3) << c.says;
  }
}

}  // namespace
