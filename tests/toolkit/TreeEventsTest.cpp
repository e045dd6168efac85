// Catches events that reach the wrong control, in the wrong order, or with the wrong point.
#include <gtest/gtest.h>

#include "RecordingTree.h"

namespace {

constexpr Point kOverlap = {45, 45};
constexpr Point kOnBack = {20, 20};
constexpr Point kOnRoot = {105, 105};
constexpr Point kOutside = {300, 5};

// The root 0 at (5, 5); 1 behind, 2 in front of it; 9 is a popup that isn't shown.
struct Events {
  Events() { window.SetBackground({}); }
  HandClock clock;
  Stage stage;
  Panel window{stage, {5, 5, 115, 115}};
  Pane& back = window.Add(window, {10, 10, 60, 60}, 1);
  Pane& front = window.Add(window, {30, 30, 80, 80}, 2);
  Pane popup{stage, nullptr, Rect{0, 0, 20, 20}};

  void ShowPopup() {
    popup.popup = true;
    popup.SetId(9);
    window.ShowPopup(&popup, false, false);
    stage.Heard();
  }
  void Drag(const Point& point) { window.MouseDrag(point, 0, 0, {}, kLeftButton); }
  void Release(const Point& point) { window.MouseUp(point, kLeftButton); }
  ~Events() {
    stage.listens = false;
    window.RemoveChild(&popup);
  }
};

struct EventCase {
  const char* what;
  void (*play)(Events&);
  const char* heard;
};

const EventCase kEventCases[] = {
    {"the one in front is pressed", [](Events& e) { e.window.MouseDownAt(kOverlap); },
     "0.OnCaptureGained 2.OnMouseDown "},
    {"a disabled one lets the press through",
     [](Events& e) {
       e.front.SetEnabled(false);
       e.window.MouseDownAt(kOverlap);
     },
     "2.SetState 0.OnCaptureGained 1.OnMouseDown "},
    {"all in a disabled one lets the press through",
     [](Events& e) {
       e.window.Add(e.front, {0, 0, 50, 50}, 3);
       e.front.SetState(kStateDisabled);
       e.window.MouseDownAt(kOverlap);
     },
     "2.SetState 0.OnCaptureGained 1.OnMouseDown "},
    {"drag and release go to the captured one",
     [](Events& e) {
       e.window.MouseDownAt(kOnBack);
       e.Drag(kOverlap);
       e.Drag(kOutside);
       e.Release(kOutside);
       e.Drag(kOnBack);
     },
     "0.OnCaptureGained 1.OnMouseDown 1.OnMouseDrag 1.OnMouseDrag 1.OnMouseUp 1.EndTracking "
     "0.OnCaptureLost "},
    {"one that doesn't track gets neither drag nor release",
     [](Events& e) {
       e.front.pressMode = kTrackNone;
       e.window.MouseDownAt(kOverlap);
       e.Drag(kOnBack);
       e.Release(kOnBack);
     },
     "0.OnCaptureGained 2.OnMouseDown 0.OnCaptureLost "},
    {"a press outside changes nothing",
     [](Events& e) {
       e.window.SetFocus(&e.back, true);
       e.ShowPopup();
       EXPECT_FALSE(e.window.MouseDownAt(kOutside));
       EXPECT_EQ(e.window.GetPopup(), &e.popup);
     },
     ""},
    {"a press elsewhere takes the focus",
     [](Events& e) {
       e.window.SetFocus(&e.back, true);
       e.window.MouseDownAt(kOnBack);
       e.window.MouseDownAt(kOnRoot);
     },
     "1.OnFocusGained 0.OnFocusChanged 0.OnCaptureGained 1.OnMouseDown 1.OnFocusLost "
     "0.OnFocusChanged 0.OnCaptureGained 0.OnMouseDown "},
    {"a press outside an open popup closes it and goes on",
     [](Events& e) {
       e.ShowPopup();
       e.window.MouseDownAt({40, 90});
       EXPECT_EQ(e.window.GetPopup(), nullptr);
     },
     "0.OnChildRemoved 0.Paint 1.Paint 1.PaintOverlay 0.PaintOverlay 0.OnCaptureGained "
     "0.OnMouseDown "},
    {"a press on the popup leaves it open; a second popup isn't shown",
     [](Events& e) {
       e.ShowPopup();
       EXPECT_EQ(e.window.ShowPopup(&e.back, false, false), &e.popup);
       EXPECT_TRUE(e.window.MouseDownAt({10, 10}));
       EXPECT_EQ(e.window.GetPopup(), &e.popup);
     },
     "0.OnCaptureGained 9.OnMouseDown "},
    {"without a window nobody is pressed, though the focus goes",
     [](Events& e) {
       e.window.SetFocus(&e.back, true);
       e.stage.Heard();
       e.window.ClearWindowContext();
       EXPECT_FALSE(e.window.MouseDownAt(kOverlap));
       e.Release(kOverlap);
     },
     "1.OnFocusLost 0.OnFocusChanged 0.OnCaptureLost "},
    {"hover enters from the hit control up and leaves what isn't hit",
     [](Events& e) {
       e.window.MouseOver(kOnBack, {});
       e.window.MouseOver(kOverlap, {});
       e.window.MouseOver(kOutside, {});
     },
     "1.OnMouseEnter 0.OnMouseEnter 1.GetCursorAt 2.OnMouseEnter 1.OnMouseLeave 2.GetCursorAt "
     "2.OnMouseLeave 0.OnMouseLeave "},
    {"a negative cursor keeps the pointer; its number is set once",
     [](Events& e) {
       e.front.cursor = -8;
       EXPECT_EQ(e.window.MouseOver(kOverlap, {}), -8);
       EXPECT_EQ(e.window.MouseOver(kOutside, {}), -8);
       e.front.cursor = kKeepPointerWithCursor0;
       EXPECT_EQ(e.window.MouseOver(kOutside, {}), 0);
       EXPECT_EQ(e.window.hoverOwner.Get(), &e.front);
       e.front.cursor = 6;
       EXPECT_EQ(e.window.MouseOver(kOutside, {}), 6);
       EXPECT_EQ(e.window.window.cursors, (std::vector<int32_t>{8, 0, 6}));
       EXPECT_EQ(e.window.hoverOwner.Get(), nullptr);
     },
     "2.OnMouseEnter 0.OnMouseEnter 2.GetCursorAt 2.GetCursorAt 2.GetCursorAt 2.GetCursorAt "},
    {"a kept pointer is let go by a control that is disabled",
     [](Events& e) {
       e.stage.listens = false;
       e.front.cursor = -8;
       e.window.MouseOver(kOverlap, {});
       e.front.SetEnabled(false);
       e.window.MouseOver(kOverlap, {});
       e.stage.listens = true;
       e.window.MouseOver(kOnBack, {});
     },
     "1.OnMouseEnter 2.OnMouseLeave 1.GetCursorAt "},
    {"an open popup alone is asked for the cursor",
     [](Events& e) {
       e.ShowPopup();
       e.window.MouseOver(kOverlap, {});
       e.window.MouseOver({6, 6}, {});
     },
     "9.OnMouseEnter 0.OnMouseEnter 9.GetCursorAt "},
    {"the right button captures nothing",
     [](Events& e) {
       e.window.RightMouseDown(kOverlap, {}, false);
       e.Drag(kOnBack);
       EXPECT_EQ(e.front.GetTrackingMode(), kTrackNone);
     },
     "2.OnRightMouseDown "},
    {"idling goes by the clock, and brings a waiting key",
     [](Events& e) {
       e.window.SetFocus(&e.front, true);
       e.stage.Heard();
       e.clock.now = 25;
       e.window.IdleTree();
       e.window.SetPendingKey(65);
       e.clock.now = 26;
       e.window.IdleTree();
       e.clock.now = 51;
       e.window.IdleTree();
     },
     "2.OnIdle 1.OnIdle 0.OnIdle 2.OnKeyDown "},
};

TEST(TreeEvents, ReachTheControlsThatTheyAreFor) {
  for (const EventCase& c : kEventCases) {
    Events events;
    c.play(events);
    EXPECT_EQ(events.stage.Heard(), c.heard) << c.what;
  }
}

TEST(TreeEvents, PointsArriveInTheControlsOwnSpace) {
  Events events;
  events.window.MouseDownAt(kOverlap);
  EXPECT_EQ(events.front.lastPoint, (Point{10, 10}));
  events.Drag({0, 0});
  EXPECT_EQ(events.front.lastPoint, (Point{-35, -35}));
  EXPECT_EQ(events.window.GetLastMousePoint(), (Point{0, 0}));
}

TEST(TreeEvents, TabGoesRoundThoseThatCanTakeTheFocus) {
  Events events;
  for (int32_t made = 3; made <= 5; ++made) events.window.Add(events.window, {0, 0, 5, 5}, made);
  for (int32_t paneId = 1; paneId <= 5; ++paneId) {
    events.window.AddToFocusRing(events.window.FindChildById(paneId));
  }
  events.front.SetEnabled(false);
  events.window.DeleteChild(events.window.FindChildById(4));
  const Modifiers shift = {.shift = true};
  struct Step {
    Modifiers keys;
    int32_t focus;
  };
  for (const Step& step : {Step{shift, 5}, {{}, 1}, {{}, 3}, {{}, 5}, {shift, 3}, {shift, 1}}) {
    EXPECT_TRUE(events.window.KeyDown(9, step.keys));
    ASSERT_NE(events.window.GetFocus(), nullptr);
    EXPECT_EQ(events.window.GetFocus()->GetId(), step.focus);
  }
  events.window.SetStateTree(kStateHidden);
  EXPECT_FALSE(events.window.KeyDown(9, {}));
}

}  // namespace
