// Catches buttons and presets that do the wrong thing to the map, or can't be undone.
#include "gradient/GradientPanel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "gradient/GradientStops.h"
#include "tests/gradient/Editor.h"

namespace {

const std::vector<Stop> kStops = {{10, 0.25F, 0.5F, 1.0F}, {90, 1.0F, 0.0F, 0.5F}, {90, 0, 1, 0}};

bool Same(const GradientSnapshot& a, const GradientSnapshot& b) {
  return std::ranges::equal(a.stopPosition, b.stopPosition) &&
         std::ranges::equal(a.stopRed, b.stopRed) && std::ranges::equal(a.stopGreen, b.stopGreen) &&
         std::ranges::equal(a.stopBlue, b.stopBlue);
}

struct EditCase {
  const char* what;
  void (*edit)(Editor& editor);
};

constexpr EditCase kEdits[] = {
    {"add", [](Editor& e) { e.Play("d 152 5 u"); }},
    {"drag", [](Editor& e) { e.Play("d 14 5 m 60 9 m 202 40 u"); }},
    {"drag off", [](Editor& e) { e.Play("d 14 5 m 60 60 u"); }},
    {"flip", [](Editor& e) { e.Click(Editor::kFlip); }},
    {"randomize", [](Editor& e) { e.Click(Editor::kRandomize); }},
    {"reset", [](Editor& e) { e.Click(Editor::kReset); }},
    {"preset", [](Editor& e) { e.Choose(4); }},
    {"paste", [](Editor& e) { e.Click(Editor::kPaste); }},
};

TEST(GradientPanel, EveryEditIsOneStepToUndoAndToRedo) {
  for (const EditCase& c : kEdits) {
    Editor editor({StoredMap(kStops), StoredMap(std::vector<Stop>{{7, 1, 1, 0}})});
    editor.SetInstance(1);
    editor.Click(Editor::kCopy);
    editor.SetInstance(0);
    const GradientSnapshot before = editor.Stops();
    c.edit(editor);
    const GradientSnapshot after = editor.Stops();
    EXPECT_FALSE(Same(before, after)) << c.what;
    EXPECT_TRUE(editor.RampIsThatOfItsStops()) << c.what;
    // There is one step of each: a second press finds the button disabled.
    for (int times = 0; times < 2; ++times) editor.Click(Editor::kUndo);
    EXPECT_TRUE(Same(before, editor.Stops())) << c.what;
    EXPECT_TRUE(editor.RampIsThatOfItsStops()) << c.what;
    for (int times = 0; times < 2; ++times) editor.Click(Editor::kRedo);
    EXPECT_TRUE(Same(after, editor.Stops())) << c.what;
    editor.Click(Editor::kUndo);
    editor.Click(Editor::kFlip);
    editor.calls.clear();
    editor.Click(Editor::kRedo);
    EXPECT_EQ(editor.calls, "") << c.what;
  }
}

TEST(GradientPanel, ButtonsCallInTheirOrderAndDisabledOnesNot) {
  Editor editor({StoredMap(kStops)});
  const auto callsOf = [&](const Point& place) {
    editor.calls.clear();
    editor.Click(place);
    return editor.calls;
  };
  EXPECT_EQ(callsOf(Editor::kPaste) + callsOf(Editor::kUndo) + callsOf(Editor::kRedo), "");
  EXPECT_EQ(callsOf(Editor::kCopy), "c");
  EXPECT_EQ(callsOf(Editor::kRandomize), "pg");
  EXPECT_EQ(callsOf(Editor::kPaste), "pvg");
  EXPECT_EQ(callsOf(Editor::kUndo), "ug");
  EXPECT_EQ(callsOf(Editor::kRedo), "rg");
  EXPECT_EQ(callsOf(Editor::kReset), "pg");
  EXPECT_EQ(callsOf(Editor::kReset), "");
  editor.Play("d 102 5 m 103 5 u");
  EXPECT_EQ(callsOf(Editor::kReset), "pg");
  // A clipboard that was just filled can be used before the next event.
  editor.global.clipboardFilled = 0;
  editor.Event([](GradientPanel&) {});
  const ControlPane& paste = *editor.panel->FindDescendantById(201);
  EXPECT_FALSE(paste.IsEnabled());
  editor.Press(Editor::kCopy);
  EXPECT_TRUE(paste.IsEnabled());
}

TEST(GradientPanel, AChosenPresetIsTheMapAndLeavingTheMenuOnlyPushes) {
  std::vector<Stop> presets[] = {
      {{0, 1, 0, 0}, {50, 1, 1, 0}, {100, 0, 1, 0}, {150, 0, 1, 1}, {200, 0, 0, 1}},
      {{0, 1, 1, 1}, {200, 0, 0, 0}},
      {{0, 1, 1, 1}, {50, 0, 1, 1}, {200, 0, 0, 1}},
      {{0, 1, 1, 0}, {50, 1, 0, 0}, {100, 1, .5, .75}, {150, 1, .5, 1}, {200, .63F, 0, 1}},
      {{50, 0, 1, 0}, {150, 0, .5, 0}},
      {{25, 0, 0, 0}, {100, .5, .5, .75}, {200, 1, 1, 1}}};
  for (int32_t preset = 0; preset < 6; ++preset) {
    Editor editor({StoredMap(kStops)});
    editor.Choose(preset);
    presets[preset].resize(50, {255, 0, 0, 0});
    StoredMap expected(presets[preset]);
    EXPECT_TRUE(Same(TakeSnapshot(GradientView(expected.Record())), editor.Stops())) << preset;
    EXPECT_TRUE(editor.RampIsThatOfItsStops()) << preset;
    EXPECT_EQ(editor.calls, "pg") << preset;
    // Press on a row, release beside the list.
    editor.Click(Editor::kPresets);
    editor.Press(Editor::RowOf(1));
    const GradientSnapshot before = editor.Stops();
    editor.Release(Editor::kFreePlace);
    EXPECT_EQ(editor.calls, "pgpg") << preset;
    EXPECT_TRUE(Same(before, editor.Stops())) << preset;
    // A press beside the list closes it and does nothing else.
    editor.Click(Editor::kPresets);
    editor.Click(Editor::kFreePlace);
    EXPECT_EQ(editor.panel->GetPopup(), nullptr);
    EXPECT_EQ(editor.calls, "pgpg") << preset;
  }
}

// The reset button compares ramp and slots as numbers.
TEST(GradientPanel, ResetIsOfferedForAnyMapButTheDefault) {
  StoredMap map(kStops);
  InitRecord(map.Record());
  struct Change {
    const char* what;
    void (*apply)(GradientRecord& record);
    bool offered;
  };
  const Change changes[] = {
      {"none", [](GradientRecord&) {}, false},
      {"-0.0", [](GradientRecord& r) { r.stopBlue[0] = -0.0F; }, false},
      {"a free slot's colour", [](GradientRecord& r) { r.stopGreen[49] = 0.5F; }, true},
      {"NaN", [](GradientRecord& r) { r.stopRed[9] = std::numeric_limits<float>::quiet_NaN(); },
       true},
      {"the stored ramp", [](GradientRecord& r) { r.colorMapBlue[200] = 0.5F; }, true},
      {"a position behind the end", [](GradientRecord& r) { r.stopPosition[40] = 3; }, true},
  };
  for (const Change& change : changes) {
    Editor editor({map});
    change.apply((*editor.map));
    editor.Event([&](GradientPanel& panel) {
      EXPECT_EQ(panel.FindDescendantById(300)->IsEnabled(), change.offered) << change.what;
    });
  }
}

}  // namespace
