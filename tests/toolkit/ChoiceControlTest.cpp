// Catches cells, tabs and popups that choose another one than the mouse was on.
#include <gtest/gtest.h>

#include "tests/toolkit/StockStage.h"
#include "toolkit/GroupControl.h"
#include "toolkit/TabControl.h"
#include "toolkit/TitledCheckbox.h"
#include "toolkit/TitledPopup.h"
#include "toolkit/TitledScrollingPopup.h"
#include "toolkit/Twirly.h"

namespace {

TEST(GroupControl, CellsPartTheWidthWithoutGapAndAreFoundWhereTheyAre) {
  for (int32_t count = 1; count < 9; ++count) {
    for (const int32_t width : {1, 5, 31, 100}) {
      GroupControl group(nullptr, {0, 0, width, 20});
      for (int32_t i = 0; i < count; ++i) group.AddTextCell("");
      int32_t end = 0;
      for (int32_t i = 0; i < count; ++i) {
        const Rect cell = group.GetCellRect(i);
        EXPECT_EQ(cell.left, end);
        end = cell.right;
        for (int32_t x = cell.left; x < end; ++x) EXPECT_EQ(group.FindCell({x, 3}), i) << count;
      }
      EXPECT_EQ(end, width);
      EXPECT_EQ(group.FindCell({width, 3}), -1);
    }
  }
}

TEST(TabControl, TabsStandSideBySideAndShrinkInsteadOfLeavingTheRow) {
  for (const int32_t width : {10, 60, 400}) {
    StockStage stage;
    auto& tabs = stage.Add<TabControl>(Rect{0, 0, width, 20});
    for (const char* caption : {"First", "A second one", "Third"}) tabs.AddTab(caption);
    const std::vector<Rect> places = tabs.LayOutTabs();
    EXPECT_EQ(places[1].left, places[0].right);
    EXPECT_EQ(places[2].left, places[1].right);
    EXPECT_GT(places[1].right - places[1].left, places[0].right);
    EXPECT_TRUE(width == 400 ? places[2].right < width : places[2].right == width) << width;
  }
}

void ExpectNewsOnlyOfAnotherOne(CellRow& row, StockStage& stage) {
  row.SetListener(&stage);
  const char* const wanted[] = {"pr", "cpr", "pr"};
  const Point points[] = {{5, 5}, {45, 5}, {45, 5}};
  for (int32_t i = 0; i < 3; ++i) {
    stage.Click(points[i]);
    EXPECT_EQ(stage.Heard(), wanted[i]) << i;
    EXPECT_EQ(row.GetActiveCell(), i == 0 ? 0 : 1) << i;
  }
}

TEST(ChoiceControls, TheListenerHearsOnlyOfAnotherChoice) {
  StockStage stage;
  auto& group = stage.Add<GroupControl>(Rect{0, 0, 60, 20});
  for (int32_t i = 0; i < 2; ++i) group.AddTextCell("");
  ExpectNewsOnlyOfAnotherOne(group, stage);
  auto& tabs = stage.Add<TabControl>(Rect{0, 0, 60, 20});
  for (int32_t i = 0; i < 2; ++i) tabs.AddTab("Tab");
  ExpectNewsOnlyOfAnotherOne(tabs, stage);
}

TEST(Twirly, OnlyAReleaseInsideTurnsIt) {
  StockStage stage;
  auto& twirly = stage.Add<Twirly>(Rect{0, 0, 16, 16});
  twirly.SetListener(&stage);
  stage.Click({5, 5});
  EXPECT_TRUE(twirly.IsOpen());
  stage.Press({5, 5});
  stage.Drag({50, 5});
  stage.Release({50, 5});
  EXPECT_TRUE(twirly.IsOpen());
  EXPECT_EQ(stage.Heard(), "pcrp");
}

TEST(TitledPane, TheControlGetsWhatTheCaptionLeavesAndTakesTheMouseThere) {
  StockStage stage;
  auto& titled = stage.Add<TitledCheckbox>(Rect{0, 0, 100, 20}, "Loop", 40);
  EXPECT_EQ(titled.GetCheckbox()->GetBounds(), (Rect{40, 0, 100, 20}));
  stage.Click({30, 5});
  EXPECT_FALSE(titled.GetCheckbox()->IsOn());
  stage.Click({45, 5});
  EXPECT_TRUE(titled.GetCheckbox()->IsOn());
  titled.SetBounds({0, 0, 30, 20});
  EXPECT_EQ(titled.GetCheckbox()->GetBounds(), (Rect{30, 0, 30, 20}));
}

std::vector<std::string> Rows(int32_t count) {
  std::vector<std::string> rows;
  rows.reserve(static_cast<size_t>(count));
  for (int32_t i = 0; i < count; ++i) rows.push_back("Row " + std::to_string(i));
  return rows;
}

template <typename Kind>
void ExpectPressOpensAndCloses(StockStage& stage, Kind& dropDown) {
  for (const bool open : {true, false, true}) {
    stage.Click({80, 5});
    EXPECT_EQ(stage.GetPopup() != nullptr, open);
  }
  EXPECT_EQ(dropDown.GetChosen(), 0);
}

TEST(TitledPopup, APressOpensAndClosesAndARowIsChosen) {
  StockStage stage;
  auto& dropDown = stage.Add<TitledPopup>(Rect{0, 0, 100, 20}, "Band", 40);
  dropDown.SetListener(&stage);
  dropDown.SetChoices(Rows(4));
  ExpectPressOpensAndCloses(stage, dropDown);
  stage.Heard();
  const auto* list = dynamic_cast<MenuControl*>(stage.GetPopup());
  Point row = {list->GetRowRect(2).left, list->GetRowRect(2).top};
  list->LocalToGlobalPoint(&row);
  stage.Click(row);
  EXPECT_EQ(dropDown.GetChosen(), 2);
  EXPECT_NE(stage.Heard().find('c'), std::string::npos);
  EXPECT_EQ(stage.GetPopup(), nullptr);
}

TEST(TitledScrollingPopup, RowsOutOfSightAreReachedByScrollingAndCannotBeChosenBefore) {
  StockStage stage;
  auto& dropDown = stage.Add<TitledScrollingPopup>(Rect{0, 0, 100, 20}, "Band", 40);
  dropDown.SetListener(&stage);
  dropDown.SetChoices(Rows(50));
  ExpectPressOpensAndCloses(stage, dropDown);
  const auto* menu = dropDown.GetPopup().GetEnclosure();
  const auto* view = menu->GetScrollPane()->GetView();
  const Rect place = menu->GetBounds();
  EXPECT_EQ(place.bottom - place.top, 160);
  const Point below = {place.left + 30, place.bottom + 10};

  stage.Press({place.left + 30, place.top + 20});
  stage.Release(below);
  EXPECT_EQ(dropDown.GetChosen(), 0);
  EXPECT_EQ(stage.GetPopup(), nullptr);

  stage.Click({80, 5});
  stage.Press({place.left + 30, place.top + 20});
  for (int32_t i = 0; i < 100; ++i) stage.Drag(below);
  EXPECT_EQ(view->GetOffset().y, view->ContentSize().y - view->GetLocalBounds().bottom);
  stage.Release({place.left + 30, place.bottom - 12});
  EXPECT_EQ(dropDown.GetChosen(), 49);
  EXPECT_EQ(stage.GetPopup(), nullptr);

  // Opening shows the row that is chosen, from above and from below.
  for (const int32_t chosen : {0, 49}) {
    dropDown.SetChosen(chosen);
    stage.Click({80, 5});
    const Rect row = menu->GetSub()->GetRowRect(chosen);
    const int32_t offset = view->GetOffset().y;
    EXPECT_TRUE(offset <= row.top && row.bottom <= offset + view->GetLocalBounds().bottom);
    stage.Click({80, 5});
  }
  // A press on the bar leaves the menu open.
  stage.Click({80, 5});
  stage.Click({place.right - 5, place.top + 8});
  EXPECT_NE(stage.GetPopup(), nullptr);
  dropDown.SetChoices({});
  stage.Click({80, 5});
  stage.Click({80, 5});
  EXPECT_TRUE(stage.GetPopup() == nullptr && dropDown.GetChosen() == -1);
}

}  // namespace
