// Catches rows that lie, look or answer elsewhere than where they are drawn, and choices that are
// made wrongly or told to the wrong ones.
#include "MenuStage.h"
#include "drawing/Labeler.h"

namespace {

TEST(MenuControl, IsAsWideAsItsLabelsWithinLimits) {
  SharedLabeler().SetFont(&FontMenu());
  const std::string middling = "Neither a short nor a long label";
  const int32_t measured = SharedLabeler().MeasureString(middling.c_str(), 0);
  const std::string bytes("a\0b\xFF\n", 5);
  const std::pair<Strings, int32_t> cases[] = {{{}, 112},
                                               {{"-", bytes}, 112},
                                               {{"a", middling, "b"}, measured + 2 + 20 + 12},
                                               {{std::string(100000, 'W')}, 512}};
  for (const auto& [labels, width] : cases) {
    MenuControl list(nullptr, {7, 9, 7, 9});
    list.RebuildItems(&labels);
    EXPECT_EQ(list.GetBounds().right, 7 + width) << labels.size() << " rows";
  }
}

TEST(MenuControl, AReleaseChoosesTheEnabledRowUnderIt) {
  const struct {
    const char* what;
    int32_t press, drag, release, selected;
    size_t repaints;  // by opening, press and drag
  } cases[] = {{"one row", 3, 3, 3, 3, 3},
               {"from one to another", 0, 3, 3, 3, 3},
               {"out of the rows", 0, -1, -1, -1, 2},
               {"pressed, then a disabled one", 0, -1, 2, 0, 2},
               {"dragged, then a disabled one", 0, 3, 2, 3, 3},
               {"a separator", 1, 1, 1, -1, 1}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.what);
    MenuStage stage({"a", "-", "c", "d"});
    stage.List()->GetItem(2)->enabled = false;
    stage.Choose(row.press, row.drag, row.release);
    EXPECT_EQ(stage.List()->GetSelectedIndex(), row.selected);
    EXPECT_EQ(stage.List()->GetHoverIndex(), -1);
    EXPECT_EQ(stage.repaints, row.repaints);
    EXPECT_EQ(stage.root->GetPopup(), nullptr);
    const Strings all = {"painted",  "50 ms over -1", "painted", "50 ms over 3",
                         "released", "chosen 3",      "painted"};
    EXPECT_EQ(stage.heard, row.release == 3 ? all : Strings({"painted"}));
  }
}

// Row 3 is under the pointer, 4 is selected; painted in pieces, at a place of its own, as a repaint
// of parts does it. The colours of fills are worked out by hand: the list's at 234 of 256 on the
// ground, the hover's at 200 on that. Text reaches its full colour somewhere in each letter.
TEST(MenuControl, EachStateOfARowHasItsLookAlsoPaintedInPieces) {
  const Strings labels = {"-", "HHH", "HHH", "HHH", "HHH"};
  MenuControl list(nullptr, {});
  list.RebuildItems(&labels);
  list.GetItem(2)->enabled = false;
  list.GetItem(2)->marked = true;
  list.GetCursorAt(nullptr, {9, list.GetRowRect(3).top}, {});
  list.SetSelectedIndex(4);
  ImageBuffer picture;
  picture.Allocate(150, 150, false);
  picture.FillRect(picture.Bounds(), ThemeColors::PanelBackground, 256, nullptr);
  const auto pixels = [&](int32_t y) { return picture.Row(8 + y) + 5; };
  // How many pixels of columns [left, right) of a row have a colour.
  const auto count = [&](int32_t row, int32_t left, int32_t right, uint32_t color) {
    int64_t found = 0;
    for (int32_t y = 6 + 20 * row; y < 26 + 20 * row; ++y) {
      found += std::count(pixels(y) + left, pixels(y) + right, ColorBGRA(color));
    }
    return found;
  };
  for (int32_t x = 0; x < 112; x += 16) {
    for (int32_t y = 0; y < 112; y += 7) {
      list.Paint({x, y, x + 16, y + 7}, picture, {5 + x, 8 + y});
    }
    EXPECT_EQ(count(1, x + 16, 112, 0xFF2E2E2E), int64_t{20} * (96 - x)) << "right of " << x + 16;
  }

  EXPECT_EQ(count(0, 6, 106, 0xFF404040), 100);
  EXPECT_EQ(count(0, 6, 106, 0xFF161616), 19 * 100);
  EXPECT_EQ(pixels(6 + 9)[6], ColorBGRA(0xFF404040)) << "the middle";
  const uint32_t textColors[] = {0, 0xFFA5A5A5, 0xFF404040, 0xFFFFFFFF, 0xFFFFFFFF};
  for (int32_t row = 1; row < 5; ++row) {
    const uint32_t fill = row == 3 ? 0xFF13364F : 0xFF161616;
    EXPECT_GE(count(row, 26, 106, textColors[row]), 3 * 2 * 6) << row;
    EXPECT_GT(count(row, 26, 106, fill), 1000) << row;
    EXPECT_EQ(count(row, 6, 26, fill) == 400, row != 2) << "the mark of " << row;
  }
  EXPECT_EQ(pixels(0)[50], ThemeColors::MenuFrame);
  EXPECT_NE(pixels(0)[0], ThemeColors::MenuFrame) << "the corners are round";
  for (const int32_t index : {INT32_MIN, -1, 4, 5, INT32_MAX}) {
    list.PaintItem(index, picture, {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, {});
  }
}

}  // namespace
