// Catches popups that open in the wrong place, and pointers that outlive what they point to when a
// menu, its holder or its root goes while it is open.
#include "MenuStage.h"

namespace {

constexpr int32_t kMin = INT32_MIN;
constexpr int32_t kMax = INT32_MAX;

struct PlacedMenu : public MenuControl {
  explicit PlacedMenu(bool isUnclamped) : MenuControl(nullptr, {}) { unclamped = isUnclamped; }
};

// The list is 112 x 32, the root's top left at (100, 50).
TEST(PopupContextMenu, OpensAtThePointAndOnlyAClampedListMovesIntoBounds) {
  const struct {
    const char* what = "";
    bool unclamped = false;
    Point point;
    Rect limits;
    Point opened;
  } cases[] = {
      {"inside", false, {110, 60}, {100, 50, 500, 650}, {110, 60}},
      {"over the top left", false, {kMin, 0}, {100, 50, 500, 650}, {100, 50}},
      {"over the bottom right", false, {450, kMax}, {100, 50, 500, 650}, {388, 618}},
      {"larger: right and bottom win", false, {103, 53}, {100, 50, 130, 60}, {18, 28}},
      {"no bounds", false, {-5, 90}, {40, 0, 40, 30}, {-5, 90}},
      {"unclamped", true, {-5, 90}, {100, 50, 500, 650}, {-5, 90}},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.what);
    MenuStage stage({});
    stage.holder->SetMenu(new PlacedMenu(row.unclamped));
    stage.List()->AddLabel("a");
    for (const Point point : {row.point, {kMax, kMin}}) {  // an open list stays
      stage.holder->ShowAt(*stage.root, point, row.limits);
      const Rect open = stage.List()->GetGlobalBounds();
      EXPECT_EQ(open, (Rect{row.opened.x, row.opened.y, row.opened.x + 112, row.opened.y + 32}));
    }
    EXPECT_EQ(PopupBase::OpenHolder(), stage.holder.get());
    EXPECT_EQ(stage.List()->GetId(), kContextMenuId);
    EXPECT_EQ(stage.List()->GetSelectedIndex(), -1);
    stage.List()->SetAlignLeft(row.unclamped);
    stage.List()->PlaceAt({30, 40, 90, 60});
    EXPECT_EQ(stage.List()->GetBounds().left, row.unclamped ? 35 : 80);
    EXPECT_EQ(stage.List()->GetBounds().bottom, 58 + 32);
  }
}

// Each upset of the tree happens at each of the six calls that a choice makes.
TEST(PopupContextMenu, WhateverGoesDuringAChoiceLeavesNothingBehind) {
  const struct {
    const char* what = "";
    void (*upset)(MenuStage&) = nullptr;
    bool listGoes = false;
  } cases[] = {
      {"the list goes", [](MenuStage& stage) { stage.holder->SetMenu(nullptr); }, true},
      {"its holder goes", [](MenuStage& stage) { stage.holder.reset(); }, true},
      {"the root goes", [](MenuStage& stage) { stage.root.reset(); }, true},
      {"it closes", [](MenuStage& stage) { stage.root->HidePopup(); }, false},
      {"it closes and the root goes",
       [](MenuStage& stage) {
         stage.root->HidePopup();
         stage.root.reset();
       },
       false},
  };
  for (const auto& row : cases) {
    for (size_t call = 1; call <= 6; ++call) {
      SCOPED_TRACE(std::string(row.what) + " at call " + std::to_string(call));
      MenuStage stage({"a", "b"});
      stage.onHeard = [&] {
        if (stage.heard.size() != call) return;
        row.upset(stage);
        const ControlPane forgetsTheDestroyed(nullptr, {});
      };
      stage.Choose(1, 1, 1);
      EXPECT_TRUE(PopupBase::OpenMenu() == nullptr && PopupBase::OpenHolder() == nullptr);
      EXPECT_TRUE(!stage.root || stage.root->GetPopup() == nullptr);
      EXPECT_TRUE(!row.listGoes || stage.heard.size() == call);
      EXPECT_TRUE(!row.listGoes || !stage.root || stage.root->IsDirty());
      EXPECT_TRUE(!stage.holder || (stage.holder->GetMenu() == nullptr) == row.listGoes);
    }
  }
}

}  // namespace
