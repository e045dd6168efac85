// Catches scripts that are taken though they are none, a press that doesn't do what apply does, and
// files that are left by a job that failed.
#include <algorithm>

#include "tests/workbench/cli/WorkbenchRun.h"

namespace {

class PanelRun : public WorkbenchRun {
 protected:
  // Replays a script on the Commands row; the options are parted by blanks.
  Outcome Panel(const std::string& script, const std::string& options = "") const {
    folder.Write("e.txt", script);
    std::istringstream words("panel a.wav --row commands --events e.txt --out o.png " + options);
    return Run({std::istream_iterator<std::string>(words), {}});
  }
  // The picture that a script ends with.
  std::string Picture(const std::string& script, const std::string& options = "") const {
    const Outcome outcome = Panel(script, options);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return Read(folder.Path() / "o.png");
  }
  std::string Keyframes(const std::string& script) const {
    Picture(script, "--set Channel=Left --keyframes k.csv");
    return Read(folder.Path() / "k.csv");
  }
};

struct BadScript {
  std::string script;
  std::string says;
};
const BadScript kBadScripts[] = {
    {"dance\n", "e.txt, line 1: \"dance\" is none of click"},
    {"key 13",
     "\"key\" is none of click, drag, release, move, draw, snapshot, calls, frame, pick, "
     "cancel and instance"},
    {"# one\n\nclick 1\n",
     "line 3: Y is a whole number from -2147483648 to 2147483647, not nothing"},
    {"click 2147483648 0\n", "line 1: X is a whole number"},
    {"drag 1.5 0", "line 1: X is a whole number from -2147483648 to 2147483647, not \"1.5\""},
    {"click 1 1 hyper", "\"hyper\" is none of shift, alt and ctrl"},
    {"release 1 1 double", "\"double\" is none of"},
    {"pick 0 0 256", "B is a whole number from 0 to 255, not \"256\""},
    {"pick 1 2 3 4", R"("4" is more than "pick" takes)"},
    {"instance 0", "N is a whole number from 1 to 64"},
    {"snapshot s.gif", "ends in .png, not \"s.gif\""},
    {"calls s.png", "ends in .txt, not \"s.png\""},
    {"frame f.gif 3", "ends in .png, not \"f.gif\""},
    {"frame f.png 1.5", "N is a whole number from -2147483647 to 2147483647, not \"1.5\""},
    {"draw\nsnapshot none/s.png", "the folder none does not exist"},
    {std::string("a\0\x1b"
                 "b",
                 4) +
         std::string(9000, 'x'),
     "xxx...\" is none of"},
};

TEST_F(PanelRun, RefusesAScriptWithItsLineAndLeavesNoFile) {
  for (const BadScript& c : kBadScripts) {
    const Outcome outcome = Panel(c.script);
    EXPECT_EQ(outcome.status, 1) << c.says;
    EXPECT_NE(outcome.err.find(c.says), std::string::npos) << outcome.err << "for " << c.says;
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2) << c.says;
  }
  for (const char* option : {"--zoom 9", "--row graph", "--panel-color 1,2", "--keyframes k.png",
                             "--panel-color 1,2,256", "--panel-color 1,2,3,", "--zoom 0"}) {
    EXPECT_EQ(Panel("", option).status, 2) << option;
  }
}

TEST_F(PanelRun, WritesWhatApplyWritesOnAReleaseInsideAlone) {
  const std::string applied = Apply("");
  EXPECT_EQ(Keyframes("click 175 8 # down\n  drag 20 8\ndrag 176 9 shift\nrelease 176 9"), applied);
  const std::string header = applied.substr(0, applied.find('\n') + 1);
  EXPECT_EQ(Keyframes("click 175 8\nrelease 20 8\n"), header);
  EXPECT_EQ(Keyframes("click -2147483648 2147483647 double\ndrag 175 8\nrelease 175 8"), header);
  EXPECT_EQ(Keyframes("instance 2\nclick 175 8\nrelease 175 8"), applied);
  EXPECT_EQ(Keyframes("click 175 8\ninstance 2\nrelease 175 8"), header) << "it was not pressed";
}

TEST_F(PanelRun, ShowsEachStateOfTheRowAndWhatASnapshotSaw) {
  const std::string normal = Picture("draw");
  const std::string pressed = Picture("click 175 8\nsnapshot s.png");
  EXPECT_NE(normal, pressed);
  EXPECT_NE(normal, Picture("", "--panel-color 200,200,200"));
  EXPECT_EQ(Read(folder.Path() / "s.png"), pressed);
  EXPECT_EQ(Picture("click 175 8\ndrag 20 8"), normal) << "the pointer has left";
  EXPECT_EQ(Picture("click 175 8\ninstance 2"), normal);
  EXPECT_NE(Picture("", "--zoom 2 --record-calls c.txt"), normal);
  EXPECT_EQ(Read(folder.Path() / "c.txt").find("SetAntiAliasPolicy numbers 2\nPushStateStack\n"),
            0U);
}

TEST_F(PanelRun, ATextHoldsEveryCallAndEveryPixelOfAnImage) {
  folder.Write("m.txt", "calls s.txt\nclick 34 38");
  ASSERT_EQ(Run({"panel", "--events", "m.txt", "--out", "o.txt", "--record-calls", "c.txt"}).status,
            0);
  std::istringstream lines(Read(folder.Path() / "o.txt"));
  std::string calls;
  size_t pixels = 0;
  for (std::string line; std::getline(lines, line);) {
    const bool isRow = line.starts_with("  ");
    pixels += isRow ? (line.size() - 1) / 9 : 0;
    calls += isRow ? "" : line + "\n";
  }
  EXPECT_EQ(calls, Read(folder.Path() / "c.txt"));
  EXPECT_NE(calls.find("DrawImage numbers 612 260 "), std::string::npos) << calls;
  EXPECT_EQ(pixels, 612U * 260U);
  EXPECT_NE(Read(folder.Path() / "s.txt"), lines.str()) << "a stop was added";
}

TEST_F(PanelRun, AFrameIsWhatTheHostShowsThen) {
  folder.Write("f.txt", "frame b b.png\nframe a.png 29\nclick 156 79\nframe c.png 29");
  EXPECT_EQ(Run({"panel", "a.wav", "--events", "f.txt", "--out", "o.png"}).status, 0);
  const auto frame = [this](const char* number) {
    EXPECT_EQ(Run({"render", "a.wav", "--frames", number, "--out", "r.png"}).status, 0);
    return Read(folder.Path() / "r.png");
  };
  EXPECT_EQ(Read(folder.Path() / "a.png"), frame("29"));
  EXPECT_EQ(Read(folder.Path() / "b b.png"), frame("loudest"));
  EXPECT_NE(Read(folder.Path() / "c.png"), frame("29")) << "the map was flipped";
}

}  // namespace
