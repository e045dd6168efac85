// Catches carets and selections that leave the text, or stand beside where the mouse or a key put
// them.
#include <gtest/gtest.h>

#include <random>

#include "toolkit/TextEditModel.h"

namespace {

TEST(TextEditModel, NoSequenceOfEditsLeavesTheText) {
  std::mt19937 random(7);
  TextEditModel edit;
  for (int i = 0; i < 20000; ++i) {
    const auto place = static_cast<int32_t>(random() % 40) - 10;
    const std::string text(random() % 8, static_cast<char>(random()));
    const std::string before = edit.Text();
    switch (random() % 8) {
      case 0:
        edit.PlaceCaret(place);
        break;
      case 1:
        edit.SelectTo(place);
        break;
      case 2:
        edit.SelectAll();
        break;
      case 3:
        edit.MoveLeft();
        break;
      case 4:
        edit.MoveRight();
        break;
      case 5:
        edit.EraseBackward();
        break;
      case 6:
        edit.Insert(text, 20);
        break;
      default:
        edit.EraseSelection();
        break;
    }
    ASSERT_LE(edit.Length(), 20) << i;
    ASSERT_GE(edit.SelectionStart(), 0) << i;
    ASSERT_LE(edit.SelectionStart(), edit.Caret()) << i;
    ASSERT_GE(edit.SelectionEnd(), edit.Caret()) << i;
    ASSERT_LE(edit.SelectionEnd(), edit.Length()) << i;
    ASSERT_EQ(edit.Text().find('\0'), std::string::npos) << i;
  }
}

TEST(TextEditModel, KeysPassAWholeCharacterAndInsertionReplacesTheSelection) {
  TextEditModel edit;
  edit.SetText("a\xC3\xA4z");
  edit.MoveLeft();
  edit.MoveLeft();
  EXPECT_EQ(edit.Caret(), 1);
  edit.MoveRight();
  edit.EraseBackward();
  EXPECT_EQ(edit.Text(), "az");
  edit.SelectTo(0);
  edit.MoveRight();
  EXPECT_EQ(edit.Caret(), 1);
  edit.SelectTo(9);
  edit.Insert("bcd", 3);
  EXPECT_EQ(edit.Text(), "abc");
  EXPECT_EQ(edit.Caret(), 3);
}

TEST(TextEditModel, AHitPassesACharacterUpToOneBeyondItsMiddle) {
  const std::vector<int32_t> edges = {0, 6, 10};  // 6 and 4 wide
  for (int32_t x = -5; x < 15; ++x) {
    EXPECT_EQ(PlaceAtX(edges, x), x <= 4 ? 0 : x <= 9 ? 1 : 2) << x;
  }
  EXPECT_EQ(PlaceAtX({}, 3), 0);
}

}  // namespace
