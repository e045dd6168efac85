// Catches buttons that tell too much or too little of the mouse, or touch themselves when deleted.
#include <gtest/gtest.h>

#include "tests/toolkit/ButtonPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButton.h"

namespace {

struct EventCase {
  const char* script;
  const char* heard;
  bool isDown;
  const char* toggleHeard;
  bool toggleIsOn;
};

constexpr EventCase kEventCases[] = {
    {"d", "p", true, "p", true},
    {"do", "p", false, "p", true},
    {"doi", "p", true, "p", true},
    {"du", "pr", false, "pr", true},
    {"dou", "p", false, "pr", true},
    {"doiu", "pr", false, "pr", true},
    {"dudu", "prpr", false, "prpr", false},
};

TEST(ButtonEvents, OnlyAReleaseOfAButtonThatIsDownTellsAndAToggleAlwaysDoes) {
  for (const EventCase& c : kEventCases) {
    for (const bool toggle : {false, true}) {
      ButtonPanel panel;
      const ButtonControl& button = panel.Add<QvButton>(toggle);
      panel.Play(c.script);
      EXPECT_EQ(panel.heard, toggle ? c.toggleHeard : c.heard) << c.script << toggle;
      EXPECT_EQ(button.IsPressed(), toggle ? c.toggleIsOn : c.isDown) << c.script << toggle;
    }
  }
}

// The address sanitizer sees what a deleted button touches.
TEST(ButtonEvents, TheOwnerMayDeleteTheButtonWhenItTells) {
  for (const char when : {'p', 'r'}) {
    for (const bool toggle : {false, true}) {
      ButtonPanel panel;
      panel.Add<ButtonControl>(toggle);
      panel.onNews = [&](char news) {
        if (news != when) return;
        panel.DeleteAllChildren();
        panel.Add<QvIconButton>();
      };
      panel.Play("edui");
      EXPECT_EQ(panel.heard, when == 'p' ? "p" : "pr") << toggle;
    }
  }
}

TEST(ButtonEvents, AButtonThatItsRepaintDeletesTellsNothingMore) {
  for (const char* script : {"d", "u"}) {
    ButtonPanel panel;
    panel.Add<ButtonControl>();
    if (*script == 'u') panel.Play("d");
    panel.heard.clear();
    panel.onPaint = [&] {
      panel.DeleteAllChildren();
      panel.onPaint = nullptr;
      panel.Add<ButtonControl>();
    };
    panel.Play(script);
    EXPECT_EQ(panel.heard, "") << script;
  }
}

TEST(ButtonEvents, WithoutAWindowOrAScreenTheHooksStillTell) {
  ButtonPanel panel;
  ButtonControl& button = panel.Add<QvButton>();
  panel.ClearWindowContext();
  button.OnMouseDown(nullptr, {1, 1});
  button.OnMouseUp(nullptr, {1, 1});
  EXPECT_EQ(panel.heard, "pr");
  QvButton alone(nullptr, kButtonPlace, nullptr, false, nullptr);
  alone.OnMouseDown(nullptr, {1, 1});
  alone.OnMouseDrag(nullptr, {-1, 1});
  EXPECT_FALSE(alone.IsPressed());
}

}  // namespace
