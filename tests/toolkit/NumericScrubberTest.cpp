// Catches numbers that type, drag, step or let go wrongly.
#include <gtest/gtest.h>

#include <limits>

#include "tests/toolkit/TextStage.h"
#include "toolkit/NumberParameter.h"
#include "toolkit/NumericScrubber.h"

namespace {

constexpr Point kOn = {20, 10};

struct Hearer : public NumericScrubberListener {
  void OnScrubberFocusGained(NumericScrubber*) override { Hear('+'); }
  void OnScrubberFocusLost(NumericScrubber*) override { Hear('-'); }
  void Hear(char what) {
    heard += what;
    if (what == actsOn) act();
  }
  std::string heard;
  char actsOn = 0;
  std::function<void()> act;
};

struct ScrubberStage {
  ScrubberStage() {
    panel.AddChild(scrubber, true);
    scrubber->AddParameter(&number);
    scrubber->AddListener(&hearer);
    panel.clock.now = 1000;
  }
  void ExpectPointerBack() const {
    EXPECT_TRUE(panel.window.pointerShown);
    EXPECT_EQ(panel.window.GetMousePosition(), kOn);
  }

  TextPanelStage panel;
  NumberParameter number{"Amount", {-1000, 1e9, 5, 1, 2}};
  NumericScrubber* scrubber = new NumericScrubber(&panel, {0, 0, 100, 20});
  Hearer hearer;
};

TEST(NumericScrubber, KeysTypeOnlyNumbersAndReturnKeepsThem) {
  struct Case {
    const char* keys;  // after a click, which puts the caret behind the "5"
    const char* text;
    double value;  // after Return
  };
  for (const Case& c :
       {Case{"1", "51", 51}, Case{"<-1.5.", "-1.5", -1.5}, Case{"-", "5", 5}, Case{"[-", "-5", -5},
        Case{"[--x ", "-5", -5}, Case{"<<", "", 5}, Case{"12345678", "51234567", 51234567},
        Case{"[]]1", "51", 51}, Case{"[0<7", "75", 75}, Case{"^", "6", 6}, Case{"1vv", "49", 49},
        Case{"<-", "-", 5}, Case{"[<9", "95", 95}}) {
    ScrubberStage stage;
    stage.panel.Click(kOn);
    stage.panel.Type(c.keys);
    EXPECT_EQ(stage.scrubber->GetText(), c.text) << c.keys;
    stage.panel.Type("!");
    EXPECT_EQ(stage.number.GetValue(), c.value) << c.keys;
    EXPECT_EQ(stage.scrubber->GetText(), stage.number.GetValueText()) << c.keys;
    EXPECT_EQ(stage.hearer.heard, "+-") << c.keys;
  }
}

TEST(NumericScrubber, EscapeLeavesTheValueAndAPressBesideKeepsTheText) {
  for (const bool escapes : {true, false}) {
    ScrubberStage stage;
    stage.panel.Click(kOn);
    stage.panel.Type("1");
    escapes ? stage.panel.Type("~") : stage.panel.Press({150, 90});
    EXPECT_EQ(stage.number.GetValue(), escapes ? 5 : 51);
    EXPECT_EQ(stage.scrubber->GetText(), escapes ? "5" : "51");
  }
}

TEST(NumericScrubber, ADragStepsWithoutLimitAndLeavesThePointerWhereItWas) {
  ScrubberStage stage;
  stage.panel.Press(kOn);
  EXPECT_FALSE(stage.panel.window.pointerShown);
  stage.panel.DragBy(0);  // the move that the press itself causes
  for (int i = 0; i < 100; ++i) stage.panel.DragBy(499);
  stage.panel.window.modifiers.shift = true;
  stage.panel.DragBy(-1);
  stage.panel.window.modifiers = {.control = true};
  stage.panel.DragBy(3);
  stage.panel.MouseUp(kOn, kLeftButton);
  EXPECT_DOUBLE_EQ(stage.number.GetValue(), 5 + 49900 - 10 + 0.3);
  EXPECT_EQ(stage.scrubber->GetText(), "49895.3");
  EXPECT_FALSE(stage.scrubber->HasFocus());
  stage.ExpectPointerBack();
}

TEST(NumericScrubber, AClickOrAStillPressOf600MsBeginsTyping) {
  ScrubberStage clicked;
  clicked.panel.Press(kOn);
  clicked.panel.DragBy(0);
  clicked.panel.MouseUp(kOn, kLeftButton);
  EXPECT_TRUE(clicked.scrubber->HasFocus());
  clicked.ExpectPointerBack();

  ScrubberStage held;
  held.panel.clock.now = std::numeric_limits<uint32_t>::max() - 300;  // wraps while held
  held.panel.Press(kOn);
  held.panel.PassTime(50);  // sees the press
  held.panel.PassTime(599);
  EXPECT_FALSE(held.scrubber->HasFocus());
  held.panel.PassTime(50);
  EXPECT_TRUE(held.scrubber->HasFocus());
  held.ExpectPointerBack();

  ScrubberStage dragged;
  dragged.panel.Press(kOn);
  dragged.panel.PassTime(50);
  dragged.panel.DragBy(1);
  dragged.panel.PassTime(700);
  dragged.panel.MouseUp(kOn, kLeftButton);
  EXPECT_FALSE(dragged.scrubber->HasFocus());
}

TEST(NumericScrubber, PressesInTheTextPlaceTheCaretAndSelect) {
  ScrubberStage stage;
  stage.number.SetValue(12345);
  stage.panel.Click(kOn, {.control = true});
  EXPECT_EQ(stage.number.GetValue(), 5);
  stage.number.SetValue(12345);
  stage.scrubber->SyncFromParameters();
  stage.panel.Click(kOn, {}, true);
  ASSERT_TRUE(stage.scrubber->HasFocus());
  const TextEditModel& edit = stage.scrubber->Edit();
  stage.panel.Click({1, 10});
  EXPECT_EQ(edit.Caret(), 0);
  stage.panel.Click({99, 10}, {.shift = true});
  EXPECT_EQ(edit.Selection(), 5);
  stage.panel.Press({99, 10});
  stage.panel.DragBy(-98);
  EXPECT_EQ(edit.Selection(), -5);
  stage.panel.Click(kOn, {}, true);
  EXPECT_EQ(edit.SelectionEnd() - edit.SelectionStart(), 5);
  stage.panel.Type("7!");
  EXPECT_EQ(stage.number.GetValue(), 7);
}

TEST(NumericScrubber, TheCursorTellsWhatAPressWillDo) {
  ScrubberStage stage;
  EXPECT_EQ(stage.panel.MouseOver(kOn, {}), 5);
  EXPECT_EQ(stage.panel.MouseOver(kOn, {.alt = true}), 0);
  stage.panel.Click(kOn);
  EXPECT_EQ(stage.panel.MouseOver(kOn, {.alt = true}), 1);
}

// The address sanitizer sees what is touched after that.
TEST(NumericScrubber, AListenerMayDeleteIt) {
  for (const char moment : {'+', '-'}) {
    ScrubberStage stage;
    stage.hearer.actsOn = moment;
    stage.hearer.act = [&] { stage.panel.DeleteAllChildren(); };
    stage.panel.Click(kOn);
    stage.panel.Type("1!");
    stage.panel.Click(kOn);
    stage.panel.PassTime(1000);
    EXPECT_EQ(stage.hearer.heard, moment == '+' ? "+" : "+-");
    EXPECT_TRUE(stage.panel.window.pointerShown);
  }
}

TEST(NumberParameter, TextsBecomeTheNearestNumberInTheRangeOrNothing) {
  const std::string manyDigits(5000, '9');
  struct Case {
    std::string text;
    bool isNumber;
    const char* shown;
  };
  for (const Case& c :
       {Case{" 12.5% ", true, "12.5"}, Case{"-0.001", true, "0"}, Case{manyDigits, true, "100"},
        Case{'-' + manyDigits, true, "-50"}, Case{"0." + std::string(5000, '0') + "1", true, "0"},
        Case{"", false, "7"}, Case{"%", false, "7"}, Case{"1-5", false, "7"},
        Case{"inf", false, "7"}, Case{"nan", false, "7"}, Case{"1e2", false, "7"},
        Case{std::string("1\0", 2), false, "7"}}) {
    NumberParameter number("n", {100, -50, 7, 1, 2});  // ends the wrong way round
    EXPECT_EQ(number.SetFromText(c.text), c.isNumber) << c.text.substr(0, 20);
    EXPECT_EQ(number.GetValueText(), c.shown) << c.text.substr(0, 20);
  }
}

}  // namespace
