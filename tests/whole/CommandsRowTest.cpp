// Catches a button that runs when it shouldn't, doesn't when it should, or forgets how it stands.
#include <limits>

#include "Instance.h"

namespace {

constexpr size_t kButtonState = 32;
constexpr size_t kReserved = 40;
constexpr size_t kTracking = 44;

constexpr PF_Point kInside{175, 8};
constexpr PF_Point kOutside{120, 8};

struct Step {
  PF_EventType type;
  PF_Point point;
  bool released;
  uint32_t buttonState;
  uint32_t tracking;
  bool refreshes;
};

struct Story {
  const char* what;
  std::vector<Step> steps;
  bool runs;
};

const Story kStories[] = {
    {"press and release",
     {{PF_Event_DO_CLICK, kInside, false, 1, 1, false},
      {PF_Event_DRAG, kInside, true, 0, 0, false}},
     true},
    {"drag off and release",
     {{PF_Event_DO_CLICK, kInside, false, 1, 1, false},
      {PF_Event_DRAG, kOutside, false, 0, 1, true},
      {PF_Event_DRAG, kOutside, false, 0, 1, false},
      {PF_Event_DRAG, kOutside, true, 0, 0, false}},
     false},
    {"drag off, back and release",
     {{PF_Event_DO_CLICK, kInside, false, 1, 1, false},
      {PF_Event_DRAG, {175, 14}, false, 0, 1, true},
      {PF_Event_DRAG, kInside, false, 1, 1, true},
      {PF_Event_DRAG, {199, 13}, true, 0, 0, false}},
     true},
    {"release straight after leaving",
     {{PF_Event_DO_CLICK, kInside, false, 1, 1, false},
      {PF_Event_DRAG, {175, 1}, true, 0, 0, true}},
     false},
    {"press beside the button",
     {{PF_Event_DO_CLICK, {150, 8}, false, 0, 0, false},
      {PF_Event_DRAG, kInside, true, 0, 0, false}},
     false},
    {"press on the far edge", {{PF_Event_DO_CLICK, {200, 8}, false, 0, 0, false}}, false},
    {"press at any height",
     {{PF_Event_DO_CLICK, {151, -400}, false, 1, 1, false},
      {PF_Event_DRAG, kInside, true, 0, 0, false}},
     true},
    {"drag without a press", {{PF_Event_DRAG, kInside, true, 0, 0, false}}, false},
    {"a second press elsewhere ends the first",
     {{PF_Event_DO_CLICK, kInside, false, 1, 1, false},
      {PF_Event_DO_CLICK, kOutside, false, 1, 0, false}},
     false},
    {"ends of the coordinates",
     {{PF_Event_DO_CLICK, kInside, false, 1, 1, false},
      {PF_Event_DRAG,
       {std::numeric_limits<A_long>::max(), std::numeric_limits<A_long>::min()},
       true,
       0,
       0,
       true}},
     false},
};

TEST(CommandsRow, KeepsItsStateAndRunsOnAReleaseInsideAlone) {
  for (const Story& story : kStories) {
    Instance instance(0.2);
    instance.SetUpSequence();
    int number = 0;
    for (const Step& step : story.steps) {
      const std::string where = std::string(story.what) + ", step " + std::to_string(++number);
      const CommandResult result = instance.Point(step.type, step.point, step.released);
      ExpectClean(result);
      EXPECT_EQ(instance.RecordWord(kButtonState), step.buttonState) << where;
      EXPECT_EQ(instance.RecordWord(kTracking), step.tracking) << where;
      EXPECT_EQ(instance.RecordWord(kReserved), 2U) << where;
      EXPECT_EQ(result.outFlags, step.refreshes ? PF_OutFlag_REFRESH_UI : 0) << where;
      EXPECT_EQ(instance.lastEvent.evt_out_flags, PF_EO_HANDLED_EVENT | PF_EO_UPDATE_NOW) << where;
      EXPECT_EQ(instance.lastEvent.u.do_click.send_drag != 0,
                step.type == PF_Event_DO_CLICK && step.tracking == 1)
          << where;
    }
    EXPECT_EQ(!instance.Output(1).empty(), story.runs) << story.what;
  }
}

TEST(CommandsRow, CountsColumnsFromItsMiddleAndRowsFromItsTop) {
  Instance instance(0.2);
  instance.SetUpSequence();
  instance.frame = {100, 50, 400, 65};
  ExpectClean(instance.Point(PF_Event_DO_CLICK, {275, 58}));
  EXPECT_EQ(instance.RecordWord(kTracking), 0U) << "the frame's left plays no part";
  ExpectClean(instance.Point(PF_Event_DO_CLICK, {175, 58}));
  EXPECT_EQ(instance.RecordWord(kTracking), 1U);
  ExpectClean(instance.Point(PF_Event_DRAG, {175, 8}, true));
  EXPECT_TRUE(instance.Output(1).empty()) << "released above the row";

  using Limits = std::numeric_limits<A_long>;
  instance.frame = {Limits::min(), Limits::max(), Limits::max(), Limits::min()};
  ExpectClean(instance.Point(PF_Event_DO_CLICK, {Limits::max(), 0}));
  ExpectClean(instance.Point(PF_Event_DRAG, {Limits::max(), Limits::max()}, true));
}

TEST(CommandsRow, TakesNoPressWhileNoRangeIsActive) {
  Instance instance(0.2);
  instance.SetUpSequence();
  instance.Set("Range 1/Active", "off");
  ExpectClean(instance.Send(PF_Cmd_UPDATE_PARAMS_UI));
  ExpectClean(instance.Point(PF_Event_DO_CLICK, kInside));
  EXPECT_EQ(instance.lastEvent.u.do_click.send_drag, 0);
  EXPECT_EQ(instance.RecordWord(kButtonState), 2U);
  EXPECT_EQ(instance.RecordWord(kTracking), 0U);
}

TEST(CommandsRow, EventsOfOtherKindsAndOfTheColorMapPassItBy) {
  Instance instance(0.2);
  instance.SetUpSequence();
  const std::vector<uint8_t> before = instance.Record();
  for (const PF_EventType type :
       {PF_Event_NEW_CONTEXT, PF_Event_IDLE, PF_Event_ADJUST_CURSOR, PF_Event_KEYDOWN}) {
    ExpectClean(instance.Point(type, kInside));
    EXPECT_EQ(instance.lastEvent.evt_out_flags, 0) << type;
  }
  PF_EventExtra extra{};
  extra.e_type = PF_Event_DO_CLICK;
  extra.u.do_click.screen_point = kInside;
  extra.effect_win.index = 12;
  extra.effect_win.current_frame = instance.frame;
  ExpectClean(instance.Send(PF_Cmd_EVENT, &extra));
  EXPECT_EQ(instance.Record(), before);
}

}  // namespace
