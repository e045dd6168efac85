// Catches stock controls of any kind that break on hostile events and bounds, touch themselves when
// deleted, or paint beyond their area.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "tests/toolkit/StockStage.h"
#include "toolkit/ButtonWithIconAndCenteredText.h"
#include "toolkit/Checkbox.h"
#include "toolkit/CloseButton.h"
#include "toolkit/Divider.h"
#include "toolkit/GroupControl.h"
#include "toolkit/IconicButton.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/Slider.h"
#include "toolkit/TabControl.h"
#include "toolkit/TitledCheckbox.h"
#include "toolkit/TitledPopup.h"
#include "toolkit/TitledScrollingPopup.h"
#include "toolkit/TitledToggle.h"
#include "toolkit/Twirly.h"

namespace {

constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
// Bytes without a glyph, and far more than fits.
const std::string kHostileText = "\x01\xff\x80 a" + std::string(5000, 'W');

template <typename Kind, typename... Arguments>
Kind& AddHeard(StockStage& stage, const Rect& place, Arguments... arguments) {
  auto& made = stage.Add<Kind>(place, arguments...);
  made.SetListener(&stage);
  return made;
}

template <typename Kind>
void AddDropDown(StockStage& stage, const Rect& place) {
  AddHeard<Kind>(stage, place, kHostileText, 40)
      .SetChoices(std::vector<std::string>(40, kHostileText));
}

struct Kind {
  const char* name;
  void (*add)(StockStage& stage, const Rect& place);
};

const Kind kKinds[] = {
    {"slider", [](StockStage& s, const Rect& r) { AddHeard<Slider>(s, r, 0.0, 1.0); }},
    {"bar", [](StockStage& s, const Rect& r) { AddHeard<ScrollBar>(s, r).SetExtent(kMost, 100); }},
    {"pane",
     [](StockStage& s, const Rect& r) {
       auto& pane = s.Add<ScrollPane>(r, 12, 12);
       pane.SetContent(new CustomControl(pane.GetView(), {0, 0, 5000, kMost}, &s));
     }},
    {"tabs",
     [](StockStage& s, const Rect& r) {
       auto& tabs = AddHeard<TabControl>(s, r);
       for (const auto& text : {std::string("A"), kHostileText, std::string()}) tabs.AddTab(text);
     }},
    {"group",
     [](StockStage& s, const Rect& r) {
       static const ImageBuffer kNoPicture;
       auto& group = AddHeard<GroupControl>(s, r);
       group.AddTextCell("A");
       group.AddTextCell(kHostileText);
       group.AddStripCell(&kNoPicture);
       group.AddStripCell(nullptr);
     }},
    {"toggle", [](StockStage& s, const Rect& r) { s.Add<ToggleButton>(r); }},
    {"check", [](StockStage& s,
                 const Rect& r) { s.Add<Checkbox>(r).SetLabels(kHostileText, kHostileText); }},
    {"close", [](StockStage& s, const Rect& r) { s.Add<CloseButton>(r); }},
    {"iconic",
     [](StockStage& s, const Rect& r) { s.Add<IconicButton>(r, nullptr, false, nullptr); }},
    {"icon and text",
     [](StockStage& s, const Rect& r) {
       s.Add<ButtonWithIconAndCenteredText>(r, nullptr, false, nullptr)
           .SetIcon(kButtonNormal, new NativeImageBuffer);
     }},
    {"divider", [](StockStage& s, const Rect& r) { s.Add<Divider>(r); }},
    {"twirly", [](StockStage& s, const Rect& r) { AddHeard<Twirly>(s, r); }},
    {"custom", [](StockStage& s, const Rect& r) { AddHeard<CustomControl>(s, r, &s); }},
    {"titled toggle", [](StockStage& s, const Rect& r) { s.Add<TitledToggle>(r, "A", 30); }},
    {"titled check", [](StockStage& s, const Rect& r) { s.Add<TitledCheckbox>(r, "A", kLeast); }},
    {"titled popup", AddDropDown<TitledPopup>},
    {"titled scrolling popup", AddDropDown<TitledScrollingPopup>},
};

constexpr Rect kPlaces[] = {kStockPlace,       {20, 10, 60, 130},         {20, 10, 20, 10},
                            {20, 10, 21, 11},  {140, 50, 20, 10},         {0, 0, kMost, 20},
                            {0, 0, 20, kMost}, {kLeast, 0, kMost, kMost}, {kLeast, kLeast, 60, 60}};

void PlayAll(StockStage& stage) {
  const Point points[] = {{30, 20}, {110, 30}, {kMost, kMost}, {kLeast, 40}, {60, 90}, {25, 45}};
  for (const Point& press : points) {
    for (const Point& move : points) {
      stage.MouseOver(move, {});
      stage.Press(press);
      stage.Drag(move);
      stage.Release(move);
    }
  }
}

TEST(StockKinds, AnyEventOnAnyBoundsLeavesTheTreeWhole) {
  for (const Kind& kind : kKinds) {
    for (const Rect& place : kPlaces) {
      SCOPED_TRACE(kind.name);
      StockStage stage;
      kind.add(stage, place);
      PlayAll(stage);
      stage.SetFocus(stage.GetFirstChild(), true);
      stage.SetChildrenEnabled(false);
      ImageBuffer page;
      page.Allocate(400, 300, false);
      stage.DrawTree({0, 0, 400, 300}, {0, 0}, page);
    }
  }
}

TEST(StockKinds, BeingDisabledAndEnabledWantsARepaint) {
  for (const Kind& kind : kKinds) {
    StockStage stage;
    kind.add(stage, kStockPlace);
    for (const bool enabled : {false, true}) {
      stage.ClearDirtyTree();
      stage.GetFirstChild()->SetEnabled(enabled);
      EXPECT_TRUE(stage.GetFirstChild()->IsDirty()) << kind.name << enabled;
    }
  }
}

// The address sanitizer sees what a deleted control touches.
TEST(StockKinds, WhoeverIsToldMayDeleteTheControl) {
  for (const Kind& kind : kKinds) {
    size_t told = 0;
    for (size_t at = 0; at <= told; ++at) {
      SCOPED_TRACE(kind.name);
      StockStage stage;
      kind.add(stage, kStockPlace);
      size_t count = 0;
      stage.onNews = [&] {
        if (count++ == at) stage.DeleteAllChildren();
      };
      PlayAll(stage);
      told = std::max(told, std::min<size_t>(count, 8));
    }
    EXPECT_TRUE(told > 0 || std::strcmp(kind.name, "divider") == 0) << kind.name;
  }
}

// In the tiles of a repaint as whole, and nowhere else.
TEST(StockKinds, PaintingInPiecesGivesTheSamePictureAndStaysInside) {
  for (const Kind& kind : kKinds) {
    for (const bool disabled : {false, true}) {
      StockStage stage;
      kind.add(stage, kStockPlace);
      if (disabled) stage.SetChildrenEnabled(false);
      ImageBuffer whole;
      ImageBuffer pieces;
      for (ImageBuffer* page : {&whole, &pieces}) page->Allocate(200, 100, false);
      stage.DrawTree({0, 0, 200, 100}, {0, 0}, whole);
      for (int32_t x = 0; x < 200; x += 23) {
        for (int32_t y = 0; y < 100; y += 17) {
          stage.DrawTree({x, y, std::min(x + 23, 200), std::min(y + 17, 100)}, {0, 0}, pieces);
        }
      }
      for (int32_t y = 0; y < 100; ++y) {
        for (int32_t x = 0; x < 200; ++x) {
          const bool inside = x >= 20 && x < 140 && y >= 10 && y < 50;
          ASSERT_EQ(whole.Row(y)[x], pieces.Row(y)[x]) << kind.name << x << ' ' << y;
          ASSERT_TRUE(inside || whole.Row(y)[x] == ThemeColors::PanelBackground) << kind.name;
        }
      }
    }
  }
}

}  // namespace
