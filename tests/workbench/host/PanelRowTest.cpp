// Catches a host that sends drags nobody asked for, forgets to draw what is invalid, or draws it at
// the wrong time.
#include "workbench/host/PanelRow.h"

#include <gtest/gtest.h>

#include <limits>

#include "EventManners.h"
#include "workbench/host/HostSession.h"

namespace {

using Limits = std::numeric_limits<A_long>;

class EventRow : public testing::Test {
 protected:
  PanelRow Row() {
    return {session.Host(), instance, 1, {0, 40, 300, 55}, [](const CommandResult& result) {
              EXPECT_TRUE(result.broken.empty()) << result.broken.front();
            }};
  }

  Comp comp;
  HostSession session{PATTERN_PLUGIN};
  EffectInstance& instance = session.AddInstance(comp.AddLayer("layer", nullptr));
};

TEST_F(EventRow, SendsDragsBehindAPressThatAsksForThemUntilTheRelease) {
  PanelRow row = Row();
  row.Click({10, 5});
  row.Drag({11, 5});
  row.Release({12, 5});
  EXPECT_EQ(row.lastEvent.e_type, PF_Event_DO_CLICK) << "nobody asked";

  row.Click({10, 5}, kAskForDrags, 2);
  EXPECT_EQ(row.lastEvent.u.do_click.num_clicks, 2);
  row.Drag({11, 5});
  EXPECT_EQ(row.lastEvent.e_type, PF_Event_DRAG);
  EXPECT_EQ(row.lastEvent.u.do_click.last_time, 0);
  EXPECT_EQ(row.lastEvent.u.do_click.continue_refcon[0], kRefcon) << "kept from the press";
  row.Release({Limits::max(), Limits::min()});
  EXPECT_EQ(row.lastEvent.u.do_click.last_time, 1);
  EXPECT_EQ(row.lastEvent.u.do_click.screen_point.h, Limits::max());
  EXPECT_EQ(row.lastEvent.u.do_click.screen_point.v, Limits::min() + 40);
  row.Drag({1, Limits::max()});
  EXPECT_EQ(row.lastEvent.u.do_click.last_time, 1) << "the release was the last";
  EXPECT_EQ(row.pane.mouse.v, Limits::max()) << "40 further down there is no number";
}

TEST_F(EventRow, DrawsWhatIsInvalidAtOnceOrBeforeTheNextEvent) {
  PanelRow row = Row();
  row.Click({10, 5}, kInvalidate);
  EXPECT_EQ(row.drawCount, 0);
  row.Move({10, 5});
  EXPECT_EQ(row.drawCount, 1);
  ASSERT_EQ(row.lastCalls.size(), 1U);
  EXPECT_EQ(DrawCallText(row.lastCalls[0]), "PaintRect color 1 0 0 1 path rect(1 42 2 3)")
      << "the effect paints what it is told to update";

  row.Click({10, 5}, kInvalidate | kUpdateNow);
  EXPECT_EQ(row.drawCount, 2);
  row.DrawIfInvalid();
  EXPECT_EQ(row.drawCount, 2) << "nothing is invalid";
  row.Click({10, 5}, kUpdateNow);
  EXPECT_EQ(row.drawCount, 2) << "nothing was invalid";
  row.Click({10, 5}, kRefresh);
  row.DrawIfInvalid();
  EXPECT_EQ(DrawCallText(row.lastCalls[0]), "PaintRect color 1 0 0 1 path rect(0 40 300 15)");
  EXPECT_EQ(row.rerenderCount, 1) << "one of these asked for a frame";
}

TEST_F(EventRow, TellsTheCursorAndAnswersColorPickersInOrder) {
  PanelRow row = Row();
  EXPECT_EQ(row.Move({7, 5}), 7);
  row.pane.colorAnswers = {PF_PixelFloat{1, 0, 0.5, 0}, std::nullopt};
  row.Click({0, 0}, kPickColor);
  EXPECT_EQ(row.lastEvent.u.do_click.continue_refcon[1], 50) << "percent of green";
  for (int i = 0; i < 2; ++i) {
    row.Click({0, 0}, kPickColor);
    EXPECT_EQ(row.lastEvent.u.do_click.continue_refcon[1], -PF_Interrupt_CANCEL);
  }
}

}  // namespace
