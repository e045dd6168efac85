// Catches buttons that tell or show the wrong thing of the mouse, or touch themselves when deleted.
#include <gtest/gtest.h>

#include "tests/toolkit/ButtonPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButtonWithBG.h"

namespace {

struct EventCase {
  const char* script;
  const char* heard;
  uint32_t plate;
  bool toggle;
};

// After a press the plate shows the pointer (6E) only when that has left and come back.
constexpr EventCase kEventCases[] = {
    {"", "", 0xFF525252, false},        {"e", "", 0xFF6E6E6E, false},
    {"ed", "p", 0xFF787878, false},     {"edo", "p", 0xFF525252, false},
    {"edoi", "p", 0xFF787878, false},   {"edu", "pr", 0xFF525252, false},
    {"edou", "p", 0xFF525252, false},   {"edoiu", "pr", 0xFF525252, false},
    {"edule", "pr", 0xFF6E6E6E, false}, {"edle", "p", 0xFF6E6E6E, false},
    {"edo", "p", 0xFF787878, true},     {"edou", "pr", 0xFF787878, true},
    {"edule", "pr", 0xFF6E6E6E, true},  {"edudul", "prpr", 0xFF525252, true},
};

template <typename Button>
void ExpectEachCase(uint32_t disabledPlate) {
  for (const EventCase& c : kEventCases) {
    ButtonPanel panel;
    panel.Add<Button>(c.toggle);
    panel.Play(c.script);
    EXPECT_EQ(panel.heard, c.heard) << c.script << c.toggle;
    EXPECT_EQ(panel.PixelAt(13, 15), ColorBGRA(c.plate)) << c.script << c.toggle;
    panel.Play("x");
    EXPECT_EQ(panel.PixelAt(13, 15), ColorBGRA(disabledPlate)) << c.script << c.toggle;
  }
}

TEST(ButtonEvents, TheOwnerHearsAndThePlateShowsWhatTheMouseDid) {
  ExpectEachCase<QvButton>(0xFF313131);
  ExpectEachCase<QvIconButtonWithBG>(0xFF373737);
}

// The address sanitizer sees what a deleted button touches. A control made after it makes the
// toolkit forget which ones have gone.
TEST(ButtonEvents, TheButtonMayBeDeletedByWhoeverItTellsAndByARepaint) {
  for (const std::string_view last : {"d", "u"}) {
    for (const bool byRepaint : {false, true}) {
      ButtonPanel panel;
      panel.Add<ButtonControl>();
      if (last == "u") panel.Play("d");
      std::string expected = panel.heard;
      if (!byRepaint) expected += last == "d" ? 'p' : 'r';
      (byRepaint ? panel.onPaint : panel.onNews) = [&] {
        panel.onPaint = nullptr;
        panel.DeleteAllChildren();
        panel.Add<ButtonControl>();
      };
      panel.Play(last);
      EXPECT_EQ(panel.heard, expected) << last << byRepaint;
    }
  }
}

TEST(ButtonEvents, WithoutAnOwnerOrAWindowItStillTakesTheMouse) {
  QvButton alone(nullptr, kButtonPlace, nullptr, false, nullptr);
  alone.OnMouseDown(nullptr, {1, 1});
  alone.OnMouseDrag(nullptr, {-1, 1});
  EXPECT_FALSE(alone.IsPressed());
}

}  // namespace
