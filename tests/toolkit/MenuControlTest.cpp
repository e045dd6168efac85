// Catches rows that lie, look or answer elsewhere than where they are drawn, and choices that are
// made wrongly or told to the wrong ones.
#include "MenuStage.h"
#include "drawing/Labeler.h"
#include "toolkit/RectAlgebra.h"

namespace {

TEST(MenuControl, IsAsLargeAsItsLabelsWithinLimits) {
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
    const auto rows = static_cast<int32_t>(labels.size());
    const int32_t height = 12 + rows * (SharedLabeler().GetLineHeight() + 8);
    EXPECT_EQ(list.GetBounds(), (Rect{7, 9, 7 + width, 9 + height})) << rows << " rows";
  }
}

TEST(MenuControl, FindsTheOneRowWhoseRectangleHoldsThePoint) {
  const Strings labels = {"a", "-", "b", "-", "-", "c"};
  MenuControl list(nullptr, {});
  list.RebuildItems(&labels);
  for (int32_t y = -3; y < list.GetLocalBounds().bottom + 3; ++y) {
    for (const int32_t x : {INT32_MIN, 5, 6, 105, 106, INT32_MAX}) {
      int32_t expected = -1;
      for (const int32_t row : {0, 2, 5}) {
        if (Contains(list.GetRowRect(row), {x, y})) expected = row;
      }
      EXPECT_EQ(list.FindRow({x, y}), expected) << x << ", " << y;
    }
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
    stage.Open();
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

// One row of each look; 3 is under the pointer, 4 is selected.
struct Looks {
  explicit Looks(float scale) {
    const Strings labels = {"-", "HHH", "HHH", "HHH", "HHH"};
    list.RebuildItems(&labels);
    list.GetItem(2)->enabled = false;
    list.GetItem(2)->marked = true;
    list.GetCursorAt(nullptr, {9, list.GetRowRect(3).top}, {});
    list.SetSelectedIndex(4);
    area = list.GetLocalBounds();
    picture.Allocate(3 * area.right, 3 * area.bottom, false);
    picture.SetScale(scale);
    picture.SetScaleAware(true);
    picture.FillRect(picture.Bounds(), ThemeColors::PanelBackground, 256, nullptr);
  }
  // How many pixels of columns [left, right) of a row have a colour.
  int64_t Count(int32_t row, int32_t left, int32_t right, uint32_t color) const {
    int64_t count = 0;
    for (int32_t y = list.GetRowRect(row).top; y < list.GetRowRect(row).bottom; ++y) {
      count += std::count(picture.Row(y) + left, picture.Row(y) + right, ColorBGRA(color));
    }
    return count;
  }

  MenuControl list{nullptr, {}};
  Rect area;
  ImageBuffer picture;
};

TEST(MenuControl, PiecesPaintedElsewhereMakeTheSamePicture) {
  for (const int32_t scale : {1, 2}) {
    Looks whole(static_cast<float>(scale));
    Looks pieces(static_cast<float>(scale));
    const Rect area = whole.area;
    whole.list.Paint(area, whole.picture, {0, 0});
    for (int32_t y = 0; y < area.bottom; y += 7) {
      for (int32_t x = 0; x < area.right; x += 11) {
        const Rect piece = Intersection({x, y, x + 11, y + 7}, area);
        pieces.list.Paint(piece, pieces.picture, {5 + x, 8 + y});
      }
    }
    for (int32_t y = 0; y < area.bottom * scale; ++y) {
      const ColorBGRA* row = whole.picture.Row(y);
      const ColorBGRA* moved = pieces.picture.Row(y + 8 * scale) + 5 * scale;
      EXPECT_TRUE(std::equal(row, row + area.right * scale, moved)) << y;
    }
  }
}

// The colours of fills are worked out by hand: the list's at 234 of 256 on the ground, the hover's
// at 200 on that. Text reaches its full colour somewhere in each letter.
TEST(MenuControl, EachStateOfARowHasItsLook) {
  Looks looks(1.0F);
  looks.list.Paint(looks.area, looks.picture, {0, 0});
  EXPECT_EQ(looks.Count(0, 6, 106, 0xFF404040), 100);
  EXPECT_EQ(looks.Count(0, 6, 106, 0xFF161616), 19 * 100);
  EXPECT_EQ(looks.picture.Row(6 + 9)[6], ColorBGRA(0xFF404040)) << "the middle";
  const uint32_t textColors[] = {0, 0xFFA5A5A5, 0xFF404040, 0xFFFFFFFF, 0xFFFFFFFF};
  for (int32_t row = 1; row < 5; ++row) {
    const uint32_t fill = row == 3 ? 0xFF13364F : 0xFF161616;
    EXPECT_GT(looks.Count(row, 26, 106, textColors[row]), 0) << row;
    EXPECT_GT(looks.Count(row, 26, 106, fill), 1000) << row;
    EXPECT_EQ(looks.Count(row, 6, 26, fill) == 20 * 20, row != 2) << "the mark of " << row;
  }
  EXPECT_EQ(looks.picture.Row(0)[50], ThemeColors::MenuFrame);
  EXPECT_NE(looks.picture.Row(0)[0], ThemeColors::MenuFrame) << "the corners are round";
}

struct CountingMenu : public MenuControl {
  CountingMenu() : MenuControl(nullptr, {}) {}
  void PaintItem(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip) override {
    painted.push_back(index);
    MenuControl::PaintItem(index, buffer, rect, clip);
  }
  std::vector<int32_t> painted;
};

TEST(MenuControl, OfTenThousandRowsOnlyThoseInTheAreaArePainted) {
  CountingMenu list;
  const Strings labels(10000, "row");
  list.RebuildItems(&labels);
  ImageBuffer buffer;
  buffer.Allocate(100, 30, false);
  const Rect row = list.GetRowRect(5000);
  list.Paint({0, row.top - 1, 100, row.bottom + 1}, buffer, {0, 0});
  list.Paint({0, row.top, 6, row.bottom}, buffer, {0, 0});  // the margin has no rows
  EXPECT_EQ(list.painted, (std::vector<int32_t>{4999, 5000, 5001}));
  for (const int32_t index : {INT32_MIN, -1, 9999, 10000, INT32_MAX}) {
    list.PaintItem(index, buffer, {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, row);
  }
}

}  // namespace
