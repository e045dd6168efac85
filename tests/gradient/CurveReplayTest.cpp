// Catches scripts that are played though a line is no event of the editor's, events that do
// something else there than the mouse does, and pictures that show another moment.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "tests/workbench/audio/TemporaryFolder.h"
#include "tools/specimens/CurveReplay.h"
#include "workbench/Failure.h"

namespace {

class CurveReplay : public testing::Test {
 protected:
  void Play(const std::string& script) const {
    folder.Write("e.txt", script);
    ReplayInCurveEditor(folder.Path() / "e.txt", folder.Path() / "pictures");
  }
  std::string Picture(const std::string& name) const {
    std::ifstream file(folder.Path() / "pictures" / name, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
  }

  const TemporaryFolder folder;
};

TEST_F(CurveReplay, ShowsEachMomentOfTheScript) {
  Play(
      "snapshot new.png\nclick 31 118\ndrag 91 38\nrelease 91 38\nsnapshot drawn.png\n"
      "click 244 14\nrelease 244 14\nmove 30 30\nsnapshot undone.png # but it can be redone\n"
      "click 264 14\nrelease 264 14\nmove 30 30\nsnapshot redone.png\n"
      "click 252 121\nrelease 252 121\nmove 30 30\nsnapshot points.png\n"
      "click 50 40\nrelease 50 40\nmove 30 30\nsnapshot added.png\n"
      "key 127\nsnapshot deleted.png\nclick 244 14\nrelease 244 14\nmove 30 30\nsnapshot "
      "back.png\n");
  const std::set<std::string> seen = {
      Picture("new.png"),   Picture("drawn.png"),   Picture("undone.png"), Picture("points.png"),
      Picture("added.png"), Picture("deleted.png"), Picture("back.png")};
  EXPECT_EQ(seen.size(), 7U);
  EXPECT_FALSE(seen.contains(""));
  EXPECT_EQ(Picture("redone.png"), Picture("drawn.png"));
}

TEST_F(CurveReplay, RefusesWhatIsNoEventOfTheEditor) {
  for (const std::string line : {"frame f.png", "pick 1 2 3", "cancel", "instance 1", "key",
                                 "key -1", "key 127 double", "key 127 9"}) {
    try {
      Play("snapshot s.png\n" + line);
      ADD_FAILURE() << line;
    } catch (const JobFailure& failure) {
      EXPECT_NE(std::string(failure.what()).find("e.txt, line 2: "), std::string::npos) << line;
      EXPECT_FALSE(std::filesystem::exists(folder.Path() / "pictures")) << line;
    }
  }
}

}  // namespace
