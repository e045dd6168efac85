// Catches events that reach the wrong control, in the wrong order, or with the wrong point.
#include <gtest/gtest.h>

#include "RecordingTree.h"
#include "toolkit/PopupContextMenu.h"

namespace {

// The root 0 at (5, 5); 1 behind, 2 in front of it with 3 in its corner; 9 is a popup that is
// closed.
struct Events {
  Events() {
    popup.popup = true;
    popup.SetId(9);
  }
  ~Events() { window.RemoveChild(&popup); }

  static Point At(char place) {
    if (place == 'o') return {300, 5};                  // outside
    if (place == 'r') return {105, 105};                // on the root alone
    if (place == 'b') return {20, 40};                  // on the one behind alone
    return place == 'p' ? Point{6, 6} : Point{45, 45};  // the popup; where 1 and 2 overlap
  }
  // Plays pairs of a verb and a place; "no" and numbers are what the events answer.
  void Play(const std::string& script) {
    for (size_t step = 0; step + 1 < script.size(); step += 3) {
      const Point at = At(script[step + 1]);
      switch (script[step]) {
        case 'D':
          if (!window.MouseDownAt(at)) stage.heard += "no ";
          break;
        case 'M':
          window.MouseDrag(at, 0, 0, {}, kLeftButton);
          break;
        case 'U':
          window.MouseUp(at, kLeftButton);
          break;
        case 'H':
          stage.heard += '=' + std::to_string(window.MouseOver(at, {})) + ' ';
          break;
        case 'R':
          window.RightMouseDown(at, {}, false);
          break;
        case 'P':
          window.ShowPopup(script[step + 1] == 'p' ? &popup : &back, false, false);
          break;
        case 'I':
          clock.now += static_cast<uint32_t>(script[step + 1]);
          window.IdleTree();
          break;
        default:
          Set(script[step]);
      }
    }
  }
  void Set(char what) {
    if (what == 'F') window.SetFocus(&back, true);
    if (what == 'X') front.SetState(kStateDisabled);
    if (what == 'W') window.ClearWindowContext();
    if (what == 'N') front.pressMode = kTrackNone;
    if (what == 'K') front.cursor = -8;
    if (what == 'k') front.cursor = kKeepPointerWithCursor0;
    if (what == 'Y') window.SetPendingKey(65);
    if (what == 'Q') back.SetPendingDelete(true);
    if (what == 'T') window.UpdateTree();
    if (what == '?') stage.heard += window.GetPopup() != nullptr ? "open " : "closed ";
    if (what == '|') stage.heard.clear();
  }

  HandClock clock;
  Stage stage;
  Panel window{stage, {5, 5, 115, 115}};
  Pane& back = window.Add(window, {10, 10, 60, 60}, 1);
  Pane& front = window.Add(window, {30, 30, 80, 80}, 2);
  Pane& inner = window.Add(front, {0, 0, 20, 20}, 3);
  Pane popup{stage, nullptr, Rect{0, 0, 20, 20}};
};

struct EventCase {
  const char* what;
  const char* script;
  const char* heard;
};

const EventCase kEventCases[] = {
    {"the one in front is pressed", "Dx", "0.OnCaptureGained 3.OnMouseDown "},
    {"all in a disabled one lets the press through", "X  |  Dx",
     "0.OnCaptureGained 1.OnMouseDown "},
    {"drag and release go to the captured one", "Db Mx Mo Uo Mb",
     "0.OnCaptureGained 1.OnMouseDown 1.OnMouseDrag 1.OnMouseDrag 1.OnMouseUp 1.EndTracking "
     "0.OnCaptureLost "},
    {"a press outside changes nothing", "F  Pp |  Do ? ", "no open "},
    {"a press elsewhere takes the focus", "F  Db |  Dr",
     "1.OnFocusLost 0.OnFocusChanged 0.OnCaptureGained 0.OnMouseDown "},
    {"a press outside an open popup closes it and goes on", "Pp |  Dr ? ",
     "0.OnChildRemoved 0.Paint 1.Paint 1.PaintOverlay 0.PaintOverlay 0.OnCaptureGained "
     "0.OnMouseDown closed "},
    {"a press on the popup leaves it open; a second one isn't shown", "Pp |  Px Dp ? ",
     "0.OnCaptureGained 9.OnMouseDown open "},
    {"without a window nobody is pressed, though the focus goes", "F  |  W  Dx Ux",
     "1.OnFocusLost 0.OnFocusChanged no 0.OnCaptureLost "},
    {"hover enters from the hit control up and leaves what isn't hit", "Hb Hr Ho",
     "1.OnMouseEnter 0.OnMouseEnter 1.GetCursorAt =0 1.OnMouseLeave 0.GetCursorAt =0 "
     "0.OnMouseLeave =0 "},
    {"an open popup alone is asked for the cursor", "Pp |  Hx Hp",
     "=0 9.OnMouseEnter 0.OnMouseEnter 9.GetCursorAt =0 "},
    {"the right button captures nothing", "Rx Mb Ux", "3.OnRightMouseDown 0.OnCaptureLost "},
    {"nor does it take the release away", "Db Rb Ub",
     "0.OnCaptureGained 1.OnMouseDown 1.OnRightMouseDown 1.OnMouseUp 1.EndTracking "
     "0.OnCaptureLost "},
    {"what is to be deleted gets its release before", "Db Q  T  |  Ub",
     "1.OnMouseUp 1.EndTracking 0.OnCaptureLost "},
    {"a waiting key goes with the focus", "F  Y  Dr F  |  I\x1a",
     "3.OnIdle 2.OnIdle 1.OnIdle 0.OnIdle "},
    {"idling goes by the clock, and brings a waiting key", "F  |  I\x19 Y  I\x01 I\x19",
     "3.OnIdle 2.OnIdle 1.OnIdle 0.OnIdle 1.OnKeyDown "},
};

TEST(TreeEvents, ReachTheControlsThatTheyAreFor) {
  for (const EventCase& c : kEventCases) {
    Events events;
    events.Play(c.script);
    EXPECT_EQ(events.stage.Heard(), c.heard) << c.what;
  }
}

TEST(TreeEvents, NegativeCursorsKeepThePointerUntilItsControlIsDisabled) {
  Events events;
  events.window.DeleteChild(&events.inner);
  events.Play("|  K  Hx Ho k  Ho X  Ho Hb");
  EXPECT_EQ(events.stage.Heard(),
            "2.OnMouseEnter 0.OnMouseEnter 2.GetCursorAt =-8 2.GetCursorAt =-8 2.GetCursorAt =0 "
            "2.SetState =0 1.OnMouseEnter 2.OnMouseLeave 1.GetCursorAt =0 ");
  EXPECT_EQ(events.window.window.cursors, (std::vector<int32_t>{8, 0}));
}

TEST(TreeEvents, PointsArriveInTheControlsOwnSpace) {
  Events events;
  events.Play("Dx");
  EXPECT_EQ(events.inner.lastPoint, (Point{10, 10}));
  events.Play("Mp");
  EXPECT_EQ(events.inner.lastPoint, (Point{-29, -29}));
  events.Play("Uo");
  EXPECT_TRUE(events.window.window.pointerShown) << "whatever a press has done to it";
}

TEST(TreeEvents, RightButtonOpensTheNearestContextMenuBesideThePress) {
  Events events;
  for (ControlPane* const pane :
       std::initializer_list<ControlPane*>{&events.front, &events.window}) {
    auto* const menu = new PopupContextMenu(pane, nullptr);
    menu->EnsureMenu();
    pane->SetContextMenu(menu);
  }
  Point at = {4, 5};
  events.inner.LocalToGlobalPoint(&at);
  EXPECT_TRUE(events.window.RightMouseDown(at, {}, false));
  PopupContextMenu* const opened = events.front.GetContextMenu(nullptr, {}, nullptr);
  ASSERT_NE(events.window.GetPopup(), nullptr);
  EXPECT_EQ(events.window.GetPopup(), opened->GetMenu());
  const Rect place = opened->GetMenu()->GetGlobalBounds();
  EXPECT_EQ((Point{place.left, place.top}), (Point{at.x + 1, at.y - 4}));
  delete opened;
  EXPECT_EQ(events.front.GetContextMenu(nullptr, {}, nullptr), nullptr);
}

TEST(TreeEvents, TabGoesRoundThoseThatCanTakeTheFocus) {
  Events events;
  for (int32_t made = 3; made <= 5; ++made) events.window.Add(events.window, {0, 0, 5, 5}, made);
  for (int32_t paneId = 1; paneId <= 5; ++paneId) {
    events.window.AddToFocusRing(events.window.FindChildById(paneId));
  }
  events.front.SetState(kStateDisabled);
  events.front.DeleteAllChildren();
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
