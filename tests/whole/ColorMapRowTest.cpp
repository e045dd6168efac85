// Catches a row whose events miss their instance, that is drawn at the wrong place, or that breaks
// down when the host refuses something.
#include <algorithm>
#include <limits>

#include "Instance.h"
#include "workbench/host/PanelRow.h"

namespace {

using Limits = std::numeric_limits<A_long>;

constexpr PF_UnionableRect kFrame{5, 40, 311, 170};
constexpr PF_Point kFreePlace{34, 38};  // of the strip
constexpr PF_Point kFlip{156, 79};
constexpr PF_Point kCopy{264, 69};
constexpr PF_Point kPaste{264, 95};
constexpr ptrdiff_t kFirstStop = 48 + 2412;

struct Row : Instance {
  Row() : Instance(0.1) { SetUpSequence(); }

  // Sends one event, as the test has it.
  CommandResult Send(PF_EventType type, Fault fault = {}) {
    event.e_type = type;
    event.evt_out_flags = 0;
    const PF_Point place{kFreePlace.h + kFrame.left, kFreePlace.v + kFrame.top};
    event.u.do_click = {0, place, 1, 0, {}, 0, last};
    if (type == PF_Event_ADJUST_CURSOR) event.u.adjust_cursor = {place, 0, 0};
    if (type == PF_Event_DRAW) event.u.draw.update_rect = update;
    Drawing drawing(nullptr, {0, 0, 1000, 1000});
    const EventPlace where{&panel.pane, type == PF_Event_DRAW ? &drawing : nullptr};
    CommandResult result = host.SendEvent(*effect, event, where, fault);
    EXPECT_TRUE(result.broken.empty()) << result.broken.front();
    EXPECT_TRUE(result.error == PF_Err_NONE || result.ShowsMessage()) << "kept quiet";
    calls = std::move(drawing.calls);
    return result;
  }
  std::vector<uint8_t> Stops(const EffectInstance& of) const {
    const std::vector<uint8_t> record = host.Handles().Bytes(of.sequenceData);
    return {record.begin() + kFirstStop, record.end()};
  }
  int64_t StopCount() const {
    const std::vector<uint8_t> stops = Stops(*effect);
    return std::find(stops.begin(), stops.begin() + 50, 255) - stops.begin();
  }

  PanelRow panel{host, *effect, 12, kFrame};
  PF_UnionableRect update = kFrame;
  PF_Boolean last = 0;
  PF_EventExtra event{panel.pane.Context(), 0, {}, {12, PF_EA_CONTROL, kFrame, {}, 0}, {},
                      PF_EI_NONE,           0};
  std::vector<DrawCall> calls;
};

TEST(ColorMapRow, APressEditsAndAsksForDragsAFrameAndARepaint) {
  Row row;
  const CommandResult result = row.Send(PF_Event_DO_CLICK);
  ExpectClean(result);
  EXPECT_EQ(row.StopCount(), 6);
  EXPECT_EQ(row.event.u.do_click.send_drag, 1);
  EXPECT_EQ(row.event.evt_out_flags, PF_EO_HANDLED_EVENT | PF_EO_ALWAYS_UPDATE | PF_EO_UPDATE_NOW);
  EXPECT_EQ(result.outFlags, PF_OutFlag_FORCE_RERENDER | PF_OutFlag_REFRESH_UI);
  const PF_UnionableRect invalid = row.panel.pane.TakeInvalid();
  EXPECT_EQ(invalid.left, 18) << "where the strip begins";
  EXPECT_GE(invalid.bottom, 99) << "where it ends";
  row.last = 1;
  EXPECT_EQ(row.Send(PF_Event_DRAG).outFlags, PF_OutFlag_FORCE_RERENDER);
  EXPECT_EQ(row.event.u.do_click.send_drag, 0);
  EXPECT_EQ(row.event.evt_out_flags, PF_EO_HANDLED_EVENT | PF_EO_UPDATE_NOW);
}

struct DrawCase {
  PF_UnionableRect update;
  std::vector<double> image;  // width, height, x, y, opacity; none: nothing is drawn
};
const DrawCase kDraws[] = {
    {kFrame, {612, 260, 10, 80, 1}},
    {{15, 45, 20, 48}, {10, 6, 30, 90, 1}},
    {{-100, 160, 6, 900}, {2, 20, 10, 320, 1}},
    {{Limits::min(), Limits::min(), Limits::max(), Limits::max()}, {612, 260, 10, 80, 1}},
    {{20, 50, 20, 60}, {}},
    {{300, 160, 10, 50}, {}},
    {{311, 40, 400, 170}, {}},
};

TEST(ColorMapRow, IsDrawnAtHalfTheSizeOfItsPixelsWhereTheHostAsks) {
  Row row;
  for (const DrawCase& c : kDraws) {
    row.update = c.update;
    row.event.evt_in_flags = PF_EI_DONT_DRAW;
    ExpectClean(row.Send(PF_Event_DRAW));
    EXPECT_TRUE(row.calls.empty());
    row.event.evt_in_flags = PF_EI_NONE;
    ExpectClean(row.Send(PF_Event_DRAW));
    EXPECT_EQ(row.event.evt_out_flags, PF_EO_HANDLED_EVENT);
    ASSERT_EQ(row.calls.size(), c.image.empty() ? 0U : 4U) << c.update.left;
    if (c.image.empty()) continue;
    EXPECT_EQ(row.calls[1].numbers, (std::vector<double>{.5, 0, 0, 0, .5, 0, 0, 0, 1}));
    EXPECT_EQ(row.calls[2].numbers, c.image);
  }
}

TEST(ColorMapRow, InstancesKeepTheirMapsAndShareTheClipboard) {
  Row row;
  EffectInstance other(row.host.Parameters(), row.layer);
  ExpectClean(row.host.Send(PF_Cmd_SEQUENCE_SETUP, &other));
  const std::vector<uint8_t> fresh = row.Stops(other);
  for (const PF_Point& point : {kFreePlace, kFlip, kCopy}) {
    row.panel.Click(point);
    row.panel.Release(point);
  }
  EXPECT_NE(row.Stops(*row.effect), fresh);
  EXPECT_EQ(row.Stops(other), fresh);
  PanelRow(row.host, other, 12, kFrame).Click(kPaste);
  EXPECT_EQ(row.Stops(other), row.Stops(*row.effect));
  ExpectClean(row.host.Send(PF_Cmd_SEQUENCE_SETDOWN, &other));
}

TEST(ColorMapRow, EventsThatAreNotForThePanelDoNothing) {
  Row row;
  const std::vector<uint8_t> before = row.Record();
  const auto expectIgnored = [&](PF_EventType type) {
    EXPECT_EQ(row.Send(type).outFlags, 0) << type;
    EXPECT_EQ(row.event.evt_out_flags, 0) << type;
  };
  for (const PF_EventType type : {PF_Event_KEYDOWN, PF_Event_IDLE}) expectIgnored(type);
  PF_Context inComp{};
  PF_Context* contexts[] = {nullptr, &inComp};
  for (const PF_ContextH context : {PF_ContextH{}, &contexts[0], &contexts[1]}) {
    row.event.contextH = context;
    expectIgnored(PF_Event_DO_CLICK);
  }
  row.event.contextH = row.panel.pane.Context();
  row.event.effect_win.area = PF_EA_PARAM_TITLE;
  expectIgnored(PF_Event_DO_CLICK);
  EXPECT_EQ(row.Record(), before);
}

TEST(ColorMapRow, AfterEachFailingCallTheNextEventWorks) {
  Row row;
  for (const PF_EventType type :
       {PF_Event_DO_CLICK, PF_Event_DRAG, PF_Event_DRAW, PF_Event_ADJUST_CURSOR}) {
    const int64_t calls = row.Send(type).hostCalls;
    for (int64_t n = 1; n <= 2 * calls; ++n) {
      row.Send(type, {(n + 1) / 2, n % 2 == 0 ? 0 : 1234});
      ExpectClean(row.Send(type));
      EXPECT_NE(row.event.evt_out_flags, 0) << type << ", " << n;
    }
  }
}

TEST(ColorMapRow, WithoutColorsOrARecordItSaysSo) {
  Row row;
  row.host.Profile().missingSuites = {"PF AE App Suite"};
  EXPECT_EQ(row.Send(PF_Event_DO_CLICK).error, PF_Err_BAD_CALLBACK_PARAM);
  EXPECT_EQ(row.StopCount(), 6) << "and goes on without";
  row.host.Profile().missingSuites.clear();
  MovableHandles& handles = row.host.Handles();
  const PF_Handle record = std::exchange(row.effect->sequenceData, handles.New(3111));
  EXPECT_EQ(row.Send(PF_Event_DO_CLICK).error, PF_Err_INTERNAL_STRUCT_DAMAGED);
  EXPECT_EQ(handles.Dispose(std::exchange(row.effect->sequenceData, record)).broken, "");
  for (int i = 0; i < 2; ++i) ExpectClean(row.host.Send(PF_Cmd_GLOBAL_SETDOWN));
  EXPECT_EQ(row.Send(PF_Event_DO_CLICK).error, PF_Err_INTERNAL_STRUCT_DAMAGED);
  ExpectClean(row.host.Send(PF_Cmd_GLOBAL_SETUP));
  ExpectClean(row.Send(PF_Event_DO_CLICK));
}

}  // namespace
