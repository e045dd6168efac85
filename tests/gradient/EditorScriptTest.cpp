// Catches events that crash, write outside the map, or touch a panel that went away meanwhile.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

#include "gradient/GradientStops.h"

#include "tests/gradient/Editor.h"

namespace {

// Events in any order on two maps, mostly within the panel.
class RandomScript {
 public:
  RandomScript(uint32_t seed, Editor& edited) : random(seed), editor(edited) {}

  void Step() {
    if (Pick(20) == 0) editor.SetInstance(1 - editor.instance);
    editor.accepts = Pick(2) == 0;
    const Point place = AnyPlace();
    const int32_t event = Pick(16);
    if (event < 4) editor.Press(place, {}, event == 0);
    if (event >= 4 && event < 12) editor.Drag(place);
    if (event >= 12 && event < 15) editor.Release(place);
    if (event == 15) editor.Over(place);
  }

 private:
  int32_t Pick(int32_t count) {
    return static_cast<int32_t>(random() % static_cast<uint32_t>(count));
  }
  Point AnyPlace() {
    constexpr Point kButtons[] = {Editor::kUndo,      Editor::kRedo, Editor::kReset,
                                  Editor::kPresets,   Editor::kCopy, Editor::kPaste,
                                  Editor::kRandomize, Editor::kFlip, {265, 54}};
    const int32_t kind = Pick(40);
    if (kind == 0) return {static_cast<int32_t>(random()), static_cast<int32_t>(random())};
    if (kind == 1)
      return {std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()};
    if (kind < 8) return kButtons[Pick(9)];
    return Editor::OnStrip(Pick(230) - 10, Pick(55) - 5);
  }

  std::mt19937 random;
  Editor& editor;
};

bool GuardsAreWhole(const StoredMap& map) {
  const auto whole = [](uint8_t byte) { return byte == 0xA5; };
  return std::all_of(map.bytes.begin(), map.bytes.begin() + StoredMap::kGuard, whole) &&
         std::all_of(map.bytes.end() - StoredMap::kGuard, map.bytes.end(), whole);
}

TEST(EditorScript, SortedStopsStaySortedUnderTheirRamp) {
  Editor editor(std::vector<StoredMap>(2, StoredMap(uint8_t{0xA5})));
  for (StoredMap& map : editor.maps) InitRecord(map.Record());
  RandomScript script(1, editor);
  for (int step = 0; step < 20000; ++step) {
    script.Step();
    const GradientView view((*editor.map));
    ASSERT_TRUE(std::is_sorted(view.stopPosition, view.stopPosition + 50)) << step;
    ASSERT_TRUE(editor.RampIsThatOfItsStops()) << step;
  }
  EXPECT_TRUE(GuardsAreWhole(editor.maps[0]) && GuardsAreWhole(editor.maps[1]));
}

TEST(EditorScript, StoredBytesOfAnyKindDoNoHarm) {
  for (uint32_t seed = 1; seed <= 100; ++seed) {
    std::mt19937 random(seed);
    Editor editor(std::vector<StoredMap>(2, StoredMap(uint8_t{0xA5})));
    for (StoredMap& map : editor.maps) {
      auto* const bytes = reinterpret_cast<uint8_t*>(&map.Record());
      std::generate_n(bytes, sizeof(GradientRecord),
                      [&] { return static_cast<uint8_t>(random()); });
    }
    RandomScript script(seed, editor);
    for (int step = 0; step < 500; ++step) script.Step();
    ImageBuffer picture;
    editor.PaintAlone(picture);
    EXPECT_TRUE(GuardsAreWhole(editor.maps[0]) && GuardsAreWhole(editor.maps[1])) << seed;
  }
}

// The address sanitizer sees what is touched after its end.
TEST(EditorScript, ThePanelMayGoInAnyCallback) {
  const auto play = [](Editor& editor) {
    editor.Click(Editor::kCopy);
    editor.Click(Editor::kPaste);
    editor.Play("d 54 5 m 90 5 m 90 60 m 90 5 u D 54 24 u");
    for (const Point& place : {Editor::kUndo, Editor::kRedo, Editor::kRandomize, Editor::kFlip,
                               Editor::kReset, Editor::kPresets, Point{265, 54}}) {
      editor.Click(place);
    }
  };
  Editor whole({StoredMap(std::vector<Stop>{{50, 1, 0, 0}})});
  play(whole);
  for (size_t last = 0; last < whole.calls.size(); ++last) {
    Editor editor({StoredMap(std::vector<Stop>{{50, 1, 0, 0}})});
    editor.onCall = [&](char) {
      if (editor.calls.size() > last) editor.panel.reset();
    };
    play(editor);
    EXPECT_EQ(editor.calls, whole.calls.substr(0, last + 1));
  }
}

}  // namespace
