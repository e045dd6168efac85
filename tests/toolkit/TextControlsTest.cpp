// Catches controls with text that keep, tell, break or choose the wrong one.
#include <gtest/gtest.h>

#include <random>

#include "drawing/Labeler.h"
#include "tests/toolkit/TextStage.h"
#include "toolkit/ComboPopupMenu.h"
#include "toolkit/HelpPanel.h"
#include "toolkit/NumberParameter.h"
#include "toolkit/TextLink.h"
#include "toolkit/TextPanel.h"
#include "toolkit/TextWrap.h"
#include "toolkit/TitledScrubber.h"

namespace {

constexpr Point kOn = {20, 10};
constexpr Rect kPlace = {0, 0, 100, 20};

template <typename Control, typename... Arguments>
Control& Add(TextPanelStage& panel, Arguments... arguments) {
  auto* made = new Control(&panel, kPlace, arguments...);
  panel.AddChild(made, true);
  return *made;
}

TEST(TextEditor, KeepsWhatReturnOrAPressBesideEndsAndTellsOfChangesOnly) {
  for (const auto& [keys, kept, told] :
       {std::tuple{"x!", "abx", 1}, {"x~", "ab", 0}, {"!", "ab", 0}, {"<<%!", "%", 1}}) {
    TextPanelStage panel;
    auto& editor = Add<TextEditor>(panel);
    editor.SetText("ab");
    int32_t heard = 0;
    panel.onReleased = [&](ControlPane* source) { heard += source == &editor ? 1 : 100; };
    panel.Click({90, 10});
    panel.Type(keys);
    EXPECT_EQ(editor.GetText(), kept) << keys;
    EXPECT_EQ(heard, told) << keys;
  }
}

TEST(TextEditor, BringsBackATextThatTheParameterRefuses) {
  TextPanelStage panel;
  auto& editor = Add<TextEditor>(panel);
  NumberParameter number("n", {0, 100, 5, 1, 0});
  editor.AddParameter(&number);
  panel.Click({90, 10});
  panel.Type("x!");
  EXPECT_EQ(editor.GetText(), "5");
  panel.Click({90, 10});
  panel.Type("55!");
  EXPECT_EQ(editor.GetText(), "100");
}

TEST(TextEditor, APressIsAtTheTextThatIsSeenAndTheCaretBlinks) {
  TextPanelStage panel;
  auto& editor = Add<TextEditor>(panel);
  editor.SetText(std::string(300, 'm'));
  panel.Click({5, 10});
  EXPECT_EQ(editor.Edit().Caret(), 0);
  panel.Type("n");
  EXPECT_EQ(editor.Edit().Length(), 300);  // no room to type
  panel.ClearDirtyTree();
  panel.PassTime(399);
  EXPECT_FALSE(editor.IsDirty());
  panel.PassTime(50);
  EXPECT_TRUE(editor.IsDirty());
}

TEST(ComboPopupMenu, KeysAndTheListBringRowsIntoTheField) {
  for (const auto& [keys, kept] : {std::tuple{"v!", "b"},
                                   {"vv!", "c"},
                                   {"vvvv^!", "b"},
                                   {"^!", "a"},
                                   {"vv~", "a"},
                                   {"vz!", "z"},
                                   {"z^!", "c"}}) {
    TextPanelStage panel;
    auto& combo = Add<ComboPopupMenu>(panel);
    combo.SetLabels({"a", "b", "-", "c"});
    combo.SetText("a");
    panel.Click(kOn);
    panel.Type(keys);
    EXPECT_EQ(combo.GetText(), kept) << keys;
  }
  TextPanelStage panel;
  auto& combo = Add<ComboPopupMenu>(panel);
  combo.SetLabels({"a", "b"});
  std::vector<ControlPane*> heard;
  panel.onReleased = [&](ControlPane* source) { heard.push_back(source); };
  for (const bool open : {true, false, true}) {
    panel.Click({95, 10});
    ASSERT_EQ(panel.GetPopup(), open ? combo.GetList() : nullptr);
  }
  const Rect row = combo.GetList()->GetRowRect(1);
  const Rect list = combo.GetList()->GetBounds();
  panel.Click({list.left + row.left, list.top + row.top});
  EXPECT_EQ(combo.GetText(), "b");
  EXPECT_EQ(heard.back(), &combo);
  EXPECT_EQ(panel.GetPopup(), nullptr);
}

TEST(TextLink, ActsOnAReleaseInsideOnly) {
  TextPanelStage panel;
  auto& link = Add<TextLink>(panel, "go");
  std::string heard;
  panel.onReleased = [&](ControlPane*) { heard += 'r'; };
  panel.Click(kOn);
  panel.Press(kOn);
  panel.DragBy(150);
  panel.MouseUp(kOn, kLeftButton);
  EXPECT_EQ(heard, "r");
  panel.SetFocus(&link, true);
  panel.Type("!x");
  EXPECT_EQ(heard, "rr");
}

// The address sanitizer sees what is touched after that.
TEST(TextControls, TheOwnerMayDeleteThemWhenItIsTold) {
  TextPanelStage panel;
  int32_t told = 0;
  panel.onReleased = [&](ControlPane*) {
    ++told;
    panel.DeleteAllChildren();
  };
  Add<TextEditor>(panel);
  panel.Click(kOn);
  panel.Type("x!");
  Add<TextLink>(panel, "go");
  panel.Click(kOn);
  Add<ComboPopupMenu>(panel).SetLabels({"a"});
  panel.Click(kOn);
  panel.Type("v!");
  EXPECT_EQ(told, 3);
}

TEST(TextWrap, LinesFitAndLoseNothingButTheBlanksTheyBreakAt) {
  std::mt19937 random(3);
  const auto withoutBlanks = [](std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
    return text;
  };
  for (int i = 0; i < 400; ++i) {
    std::string text(random() % 80, 'a');
    for (char& c : text) c = "ab \nW\xC3"[random() % 6];
    const auto width = static_cast<int32_t>(random() % 90) - 10;
    std::string joined;
    for (const std::string& line : WrapText(text, FontDefault(), width, 1000)) {
      SharedLabeler().SetFont(&FontDefault());
      if (line.size() > 1) {
        EXPECT_LE(SharedLabeler().MeasureString(line.c_str(), 0), std::max(width, 0)) << i;
      }
      joined += line;
    }
    EXPECT_EQ(withoutBlanks(joined), withoutBlanks(text)) << i;
  }
  const std::vector<std::string> kExpected = {"", "a b", "", "c"};
  EXPECT_EQ(WrapText("\na b\n\nc\n", FontDefault(), 100, 9), kExpected);
  EXPECT_EQ(WrapText("a\nb\nc", FontDefault(), 100, 2).size(), 2U);
}

TEST(HelpPanel, ShowsTheTextOfTheControlUnderThePointer) {
  TextPanelStage panel;
  HelpPanel help(nullptr, kPlace);
  help.SetIdleText("idle");
  auto& label = Add<TextLabel>(panel, "label");
  label.SetHelpText("about it");
  label.SetEnabled(false);
  help.ShowHelpAt(panel, kOn);
  EXPECT_EQ(help.GetText(), "about it");
  help.ShowHelpAt(panel, {150, 90});
  EXPECT_EQ(help.GetText(), "idle");
}

TEST(TextControls, AnyEventAnywhereAndAnyTextLeaveThemWhole) {
  constexpr int32_t kFar[] = {INT32_MIN, INT32_MIN + 1, -1, 0, 10, 95, 99, INT32_MAX};
  std::mt19937 random(5);
  const auto any = [&] { return kFar[random() % std::size(kFar)]; };
  TextPanelStage panel;
  NumberParameter number("n", {-1e300, 1e300, 0, 1e299, 9});
  auto& titled = Add<TitledScrubber>(panel, "gain", INT32_MAX);
  titled.AddParameter(&number);
  auto& combo = Add<ComboPopupMenu>(panel);
  combo.SetLabels({std::string(4000, '\xFF'), "-", std::string("a\0b", 3), ""});
  auto& block = Add<TextPanel>(panel, std::string(3000, '\t') + '\n');
  auto& help = Add<HelpPanel>(panel);
  help.SetText(std::string(5000, 'x'));
  Add<NumericScrubber>(panel).AddParameter(&number);
  ControlPane* const all[] = {&titled, &combo, &block, &help, panel.GetFirstChild()};
  ImageBuffer picture;
  picture.Allocate(200, 100, false);
  for (int i = 0; i < 4000; ++i) {
    ControlPane* const one = all[random() % std::size(all)];
    panel.MoveChildToFront(one);
    if (i % 50 == 0) one->SetBounds({any(), any(), any(), any()});
    if (i % 50 == 9) one->SetBounds(kPlace);
    const Modifiers keys = {random() % 2 == 0, random() % 2 == 0, false, random() % 2 == 0};
    panel.Press({any(), any()}, keys, random() % 2 == 0);
    panel.window.pointer = {any(), any()};
    if (i % 3 == 0) panel.MouseDrag({any(), any()}, 0, 0, keys, kLeftButton);
    if (i % 2 == 0) panel.MouseUp({any(), any()}, kLeftButton);
    panel.KeyDown(i % 4 == 0 ? any() : static_cast<int32_t>(random() % 140), keys);
    panel.KeyUp(i % 9 == 0 ? 13 : 27, keys);
    panel.PassTime(static_cast<uint32_t>(random() % 700));
    if (i % 20 == 0) panel.DrawTree(panel.GetLocalBounds(), {0, 0}, picture);
  }
  EXPECT_TRUE(std::isfinite(number.GetValue()));
  EXPECT_LE(combo.GetText().size(), 4000U);
}

}  // namespace
