// Catches sliders, scroll bars and panes that show or tell another value than the mouse gave.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/toolkit/StockStage.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/Slider.h"

namespace {

// The knob is 16 wide; its middle goes from 11 to 88 (an upright one's likewise).
TEST(Slider, TheKnobGoesWhereItIsBroughtAndAGrabDoesNotMoveIt) {
  for (const bool upright : {false, true}) {
    StockStage stage;
    const Rect place = upright ? Rect{10, 10, 28, 110} : Rect{10, 10, 110, 28};
    auto& slider = stage.Add<Slider>(place, 0.0, 77.0);
    slider.SetListener(&stage);
    const auto at = [&](int32_t along) {
      return upright ? Point{19, 110 - 1 - along} : Point{10 + along, 19};
    };
    stage.Press(at(50));
    EXPECT_NEAR(slider.GetValue(), 39.0, 1.0) << upright;
    EXPECT_EQ(stage.Heard(), "cp") << upright;
    const double before = slider.GetValue();
    stage.Release(at(50));
    stage.Press(at(45));
    EXPECT_EQ(slider.GetValue(), before) << upright;
    stage.Drag(at(55));
    EXPECT_NEAR(slider.GetValue(), before + 10.0, 0.02) << upright;
    EXPECT_EQ(stage.Heard(), "rpc") << upright;
    stage.Drag(at(-5000));
    EXPECT_EQ(slider.GetValue(), 0.0) << upright;
    stage.Drag(at(5000));
    EXPECT_EQ(slider.GetValue(), 77.0) << upright;
  }
}

TEST(Slider, ValuesStandOnAGridOfA5000thAndInTheRange) {
  Slider slider(nullptr, {0, 0, 100, 18}, -10.0, 40.0);
  struct {
    double set, got;
  } const kCases[] = {{0.004, 0.0}, {0.006, 0.01}, {-11, -10}, {41, 40}, {std::nan(""), -10}};
  for (const auto& c : kCases) {
    slider.SetValue(c.set);
    EXPECT_NEAR(slider.GetValue(), c.got, 1e-12) << c.set;
  }
  const double most = std::numeric_limits<double>::max();
  EXPECT_FALSE(slider.SetRange(1, 1) || slider.SetRange(0, std::nan("")) ||
               slider.SetRange(0, HUGE_VAL) || slider.SetRange(-most, most));
  EXPECT_TRUE(slider.SetRange(5, 6));
  EXPECT_EQ(slider.GetValue(), 5.0);
}

TEST(ScrollBar, APressBesideTheThumbGoesAViewOnAndADragMovesAlongTheContent) {
  StockStage stage;
  auto& bar = stage.Add<ScrollBar>(Rect{0, 0, 100, 14});
  bar.SetListener(&stage);
  bar.SetExtent(400, 100);  // the thumb is 30 wide and goes up to 70
  stage.Click({90, 5});
  EXPECT_EQ(bar.GetPosition(), 100);
  stage.Drag({0, 5});
  EXPECT_EQ(bar.GetPosition(), 100);
  stage.Click({5, 5});
  stage.Press({20, 5});
  stage.Drag({55, 900});
  EXPECT_EQ(bar.GetPosition(), 150);
  stage.Drag({5000, 0});
  EXPECT_EQ(bar.GetPosition(), 300);
  EXPECT_EQ(stage.Heard(), "cprcprpcc");
  bar.SetExtent(150, 100);
  EXPECT_EQ(bar.GetPosition(), 50);
  bar.SetExtent(-5, -7);
  EXPECT_EQ(bar.MostPosition(), 0);
}

struct PaneCase {
  Point content;
  int32_t policy = kBarAsNeeded;
  bool across = false, down = false;
  Point room;
};

// A pane of 100 x 80 with bars 10 wide.
TEST(ScrollPane, BarsComeAndGoWithTheContentAndTakeTheirRoom) {
  constexpr PaneCase kCases[] = {
      {{100, 80}, kBarAsNeeded, false, false, {100, 80}},
      {{101, 70}, kBarAsNeeded, true, false, {100, 70}},
      {{90, 81}, kBarAsNeeded, false, true, {90, 80}},
      {{101, 71}, kBarAsNeeded, true, true, {90, 70}},
      {{91, 81}, kBarAsNeeded, true, true, {90, 70}},
      {{10, 10}, kBarAlways, true, true, {90, 70}},
      {{10, 10}, 1, false, false, {100, 80}},
  };
  for (const PaneCase& c : kCases) {
    ScrollPane pane(nullptr, {0, 0, 100, 80}, 10, 10);
    pane.SetContent(new ControlPane(nullptr, {7, 7, 7 + c.content.x, 7 + c.content.y}));
    for (const auto axis : {ScrollAxis::kHorizontal, ScrollAxis::kVertical}) {
      pane.SetPolicy(axis, c.policy);
    }
    for (const auto axis : {ScrollAxis::kHorizontal, ScrollAxis::kVertical}) {
      EXPECT_EQ(pane.IsBarShown(axis), axis == ScrollAxis::kHorizontal ? c.across : c.down);
      EXPECT_EQ(pane.ContainsChild(pane.GetBar(axis)), pane.IsBarShown(axis));
    }
    EXPECT_EQ(pane.GetView()->GetBounds(), (Rect{0, 0, c.room.x, c.room.y})) << c.content.x;
    pane.SetOffset({9999, 9999});
    const Point most = {std::max(c.content.x - c.room.x, 0), std::max(c.content.y - c.room.y, 0)};
    EXPECT_EQ(pane.GetView()->GetOffset(), most);
    EXPECT_EQ(pane.GetBar(ScrollAxis::kVertical)->GetPosition(), most.y);
    pane.SetBounds({0, 0, 500, 500});
    EXPECT_EQ(pane.GetView()->GetOffset(), Point());
    const bool stays = c.policy == kBarAlways;
    EXPECT_EQ(pane.ContainsChild(pane.GetBar(ScrollAxis::kVertical)), stays) << c.content.x;
    pane.SetEnabled(false);
    pane.SetBounds({0, 0, 5, 5});
    EXPECT_FALSE(pane.GetBar(ScrollAxis::kVertical)->IsEnabled()) << "comes back as the pane is";
  }
  const ScrollPane bare(nullptr, {0, 0, 100, 80}, 0, -3);
  EXPECT_TRUE(bare.GetBar(ScrollAxis::kVertical) == nullptr &&
              bare.GetBar(ScrollAxis::kHorizontal) == nullptr);
}

TEST(ScrollPane, TheBarMovesTheContentUnderTheMouse) {
  StockStage stage;
  auto& pane = stage.Add<ScrollPane>(Rect{0, 0, 100, 80}, 10, 0);
  auto* content = new ControlPane(pane.GetView(), {0, 0, 90, 800});
  pane.SetContent(content);
  stage.Press({95, 75});
  EXPECT_EQ(content->GetBounds().top, -80);
  EXPECT_EQ(stage.HitTest({50, 79}), content);
  EXPECT_EQ(stage.HitTest({50, 81}), &stage);
}

}  // namespace
