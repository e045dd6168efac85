// Catches presses, drags, keys and buttons that do the wrong thing to a curve, can't be undone, or
// go on with a panel that a listener has deleted.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/gradient/CurveEditor.h"

namespace {

TEST(CurveEditor, AddsSelectsDragsAndDeletesPoints) {
  CurveEditor editor({0, 100, 200}, false);
  editor.PressGraph(50, 40);
  EXPECT_EQ(editor.Actions(), "mouseDown ");
  EXPECT_EQ(editor.Calls(), "npg");
  EXPECT_EQ(editor.stored.Points(), (std::vector<float>{0, 50, 100, 200}));
  EXPECT_EQ(editor.stored.record.pointY[1], 0.6F);
  editor.DragGraph(97, 130);  // too near the next one, and below the graph
  editor.DragGraph(90, 25);
  editor.DragGraph(-3000, 25);
  EXPECT_EQ(editor.stored.Points(), (std::vector<float>{0, 90, 100, 200}));
  editor.Release({});
  EXPECT_EQ(editor.stored.record.samples[90], editor.stored.record.pointY[1]);
  editor.Actions();

  editor.PressGraph(90 + 6, 25 + 4);  // within its area, which clears the selection
  editor.DragGraph(60, 60);
  EXPECT_EQ(editor.Actions(), "clearSelection ");
  EXPECT_EQ(editor.stored.Points()[1], 90.0F);
  editor.Release({});
}

TEST(CurveEditor, DeletesPointsDownToThree) {
  CurveEditor editor({0, 100, 150, 200}, false);
  editor.PressGraph(50, 40);
  editor.Key(65);
  editor.Key(127);
  EXPECT_EQ(editor.stored.Points(), (std::vector<float>{0, 100, 150, 200}));
  editor.Key(127);  // the selection went to the point before
  EXPECT_EQ(editor.stored.Points(), (std::vector<float>{100, 150, 200}));
  editor.PressGraph(150, 95);
  editor.Key(127);
  EXPECT_EQ(editor.stored.Points().size(), 3U);
}

TEST(CurveEditor, DrawsFreehandWhateverThePointerDoes) {
  CurveEditor editor({}, true);
  editor.PressGraph(10, 80);
  editor.DragGraph(50, 40);
  editor.DragGraph(50, 1000);
  editor.DragGraph(40, 40);
  const float* const samples = editor.stored.record.samples;
  EXPECT_EQ(samples[45], 0.55F);  // the line there ran below the graph
  constexpr int32_t kFar = std::numeric_limits<int32_t>::max();
  editor.panel->MouseDrag({kFar, -kFar}, 0, 0, {}, kLeftButton);
  editor.panel->MouseDrag({-kFar - 1, kFar}, 0, 0, {}, kLeftButton);
  editor.Release({});
  EXPECT_EQ(samples[9], 0.0F);
  EXPECT_EQ(samples[10], 0.2F);
  EXPECT_EQ(samples[25], 0.35F);
  EXPECT_EQ(samples[40], 0.6F);
  EXPECT_TRUE(editor.stored.GuardsAreWhole());
  editor.Actions();
  editor.PressGraph(100, 50);
  editor.DragGraph(100, 50);
  EXPECT_EQ(editor.Actions(), "mouseDown ");  // no sample became another
  for (const int32_t y : {50, -1, 50, -2}) editor.DragGraph(101, y);
  EXPECT_EQ(samples[101], 0.5F);
  editor.DragGraph(101, -1);
  EXPECT_EQ(samples[101], 1.0F);
}

TEST(CurveEditor, ARefusedPointIsNotDragged) {
  CurveEditor editor({0, 100, 200}, false);
  editor.Calls();
  for (int32_t i = 0; i < 25; ++i) editor.stored.record.pointX[i] = static_cast<float>(4 * i);
  editor.PressGraph(150, 50);
  EXPECT_EQ(editor.Calls(), "n");
  editor.DragGraph(20, 20);
  editor.Release({});
  EXPECT_EQ(editor.stored.Points().size(), 25U);
  EXPECT_EQ(editor.stored.record.pointX[5], 20.0F);
}

TEST(CurveEditor, ButtonsEditBetweenUndoAndNote) {
  struct ButtonCase {
    Point place;
    bool freehand = false;
    const char* calls = "";
    const char* actions = "";
  };
  const ButtonCase cases[] = {
      {CurveEditor::kSmooth, true, "pgn", "smooth "},
      {CurveEditor::kSmooth, false, "pn", ""},
      {CurveEditor::kRandomize, true, "pgn", "randomize "},
      {CurveEditor::kRandomize, false, "pgn", "randomize "},
      {CurveEditor::kFlip, false, "pgn", "flipX "},
      {CurveEditor::kCopy, false, "gc", "clearSelection "},
      {CurveEditor::kPaste, false, "vg", " "},
      {CurveEditor::kCurveMode, true, "pn", ""},
      {CurveEditor::kCurveMode, false, "pn", ""},
      {CurveEditor::kFreehandMode, false, "pgn", "setFreeHandMode "},
      {CurveEditor::kReset, true, "pgn", " "},
      {CurveEditor::kUndo, false, "ug", "clearSelection "},
  };
  for (const ButtonCase& c : cases) {
    CurveEditor editor({0, 50, 100}, c.freehand);
    editor.stored.record.samples[7] = 0.5F;
    editor.clipboard = editor.stored.record;
    editor.undo = {editor.stored.record, editor.record.freehandFlags};
    editor.Arm();
    editor.Click(c.place);
    EXPECT_EQ(editor.Calls(), c.calls) << c.place.x << ' ' << c.place.y;
    EXPECT_EQ(editor.Actions(), c.actions) << c.place.x << ' ' << c.place.y;
  }
}

TEST(CurveEditor, EveryEditCanBeUndone) {
  const std::function<void(CurveEditor&)> edits[] = {
      [](CurveEditor& e) { e.PressGraph(60, 30), e.DragGraph(70, 50), e.Release({}); },
      [](CurveEditor& e) { e.Click(CurveEditor::kRandomize); },
      [](CurveEditor& e) { e.Click(CurveEditor::kFlip); },
      [](CurveEditor& e) { e.Click(CurveEditor::kSmooth, {.shift = true}); },
      [](CurveEditor& e) { e.Click(CurveEditor::kReset); },
      [](CurveEditor& e) { e.Choose(2); },
  };
  for (const bool freehand : {true, false}) {
    for (size_t i = 0; i < std::size(edits); ++i) {
      CurveEditor editor({0, 40, 90, 180}, freehand);
      editor.stored.record.samples[60] = 0.75F;
      editor.panel->GetGraph().Publish("", false);
      const StoredCurve before = editor.stored;
      edits[i](editor);
      const bool isSmooth = i == 3;
      EXPECT_EQ(editor.stored == before, isSmooth && !freehand) << freehand << ' ' << i;
      editor.Click(CurveEditor::kUndo);
      EXPECT_EQ(editor.stored, before) << freehand << ' ' << i;
    }
  }
}

TEST(CurveEditor, ShowsTheCurveOfTheModeInItsOwnWay) {
  struct ModeCase {
    int32_t mode;
    uint32_t flag;
    size_t curve;
  };
  for (const ModeCase& c : {ModeCase{0, 2, 1}, {1, 1, 0}, {2, 4, 2}, {3, 2, 1}, {-9, 2, 1}}) {
    CurveEditor editor({0, 100, 200}, false);
    editor.record.mode = c.mode;
    editor.record.freehandFlags = c.flag;
    editor.Arm();
    EXPECT_EQ(editor.panel->GetGraph().GetCurve(), &editor.record.curves[c.curve]) << c.mode;
    EXPECT_TRUE(editor.panel->GetGraph().IsFreehand()) << c.mode;
    editor.Click(CurveEditor::kCurveMode);
    EXPECT_EQ(editor.record.freehandFlags, 0U) << c.mode;
    editor.Click(CurveEditor::kFreehandMode);
    EXPECT_EQ(editor.record.freehandFlags, c.flag) << c.mode;
    editor.record.freehandFlags = ~c.flag;
    editor.Arm();
    EXPECT_FALSE(editor.panel->GetGraph().IsFreehand()) << c.mode;
  }
}

TEST(CurveEditor, AnyCallMayDeleteThePanel) {
  const std::function<void(CurveEditor&)> events[] = {
      [](CurveEditor& e) { e.PressGraph(60, 30), e.DragGraph(70, 40), e.Release({}), e.Key(127); },
      [](CurveEditor& e) { e.Click(CurveEditor::kRandomize); },
      [](CurveEditor& e) { e.Click(CurveEditor::kCopy), e.Click(CurveEditor::kPaste); },
      [](CurveEditor& e) {
        e.Click(CurveEditor::kFlip), e.Click(CurveEditor::kUndo), e.Click(CurveEditor::kReset);
      },
      [](CurveEditor& e) { e.Click(CurveEditor::kFreehandMode), e.Click(CurveEditor::kCurveMode); },
      [](CurveEditor& e) { e.Choose(2); },
  };
  for (const auto& event : events) {
    for (int32_t last = 0; last < 9; ++last) {
      CurveEditor editor({0, 40, 90, 180}, false);
      int32_t count = 0;
      editor.onCall = [&](char) {
        if (count++ == last) editor.panel.reset();
      };
      event(editor);
      EXPECT_EQ(editor.panel == nullptr, count > last);
      EXPECT_LE(count, last + 1);
    }
  }
}

TEST(CurveEditor, TheLineShowsBetweenPointsWhereverTheCurveSwings) {
  for (const std::vector<float>& points : {std::vector<float>{0, 20, 40, 180, 200}, {0, 60, 200}}) {
    CurveEditor editor(points, false);
    for (size_t i = 0; i < points.size(); ++i) {
      editor.stored.record.pointY[i] = i % 4 == 0 ? 0.0F : 1.0F;
    }
    ImageBuffer picture;
    picture.Allocate(306, 184, false);
    editor.Paint(picture, {0, 0});
    for (int32_t x = 22; x < 220; ++x) {
      const auto position = static_cast<float>(x - 21);
      const auto hides = [position](float point) { return std::abs(position - point) < 5; };
      if (std::any_of(points.begin(), points.end(), hides)) continue;
      uint8_t brightest = 0;
      for (int32_t y = 28; y < 128; ++y) brightest = std::max(brightest, picture.Row(y)[x].red);
      EXPECT_GT(brightest, 100) << x;
    }
  }
}

TEST(CurvePresets, StandAtTheirTurningPoints) {
  const CurvePresetSource source(100);
  struct PresetCase {
    int32_t preset, position;
    float value;
  };
  for (const PresetCase& c : {PresetCase{0, 200, 1.0F},
                              {1, 0, 1.0F},
                              {1, 200, 0.004975F},
                              {2, 49, 0.975124F},
                              {2, 50, 1.0F},
                              {2, 200, 0.004975F},
                              {3, 25, 0.5F},
                              {3, 100, 1.0F},
                              {3, 175, 0.5F},
                              {3, 200, 0.0F},
                              {4, 74, 1.0F},
                              {4, 100, 0.5F},
                              {4, 126, 0.0F},
                              {5, 49, 1.0F},
                              {5, 112, 0.505999F},
                              {5, 185, 1.0F},
                              {5, 195, 0.0F}}) {
    EXPECT_NEAR(source.GetPreset(c.preset).samples[c.position], c.value, 1e-6F)
        << c.preset << ' ' << c.position;
  }
  const float* const last = source.GetPreset(5).samples;
  EXPECT_EQ(std::count(last + 75, last + 201, 1.0F), 24);
}

}  // namespace
