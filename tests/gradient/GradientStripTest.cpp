// Catches presses that miss their stop, and drags that lose, mix up or misplace stops.
#include "gradient/GradientStrip.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "tests/gradient/Editor.h"

namespace {

// Stops are written as position and letter, the letter telling the colour: "0a 50b".
float RedOf(char letter) {
  return static_cast<float>(letter - 'a' + 1) / 64.0F;
}

StoredMap MapOf(const std::string& text) {
  std::vector<Stop> stops;
  std::istringstream words(text);
  int position = 0;
  for (char letter = 0; words >> position >> letter;) {
    stops.emplace_back(static_cast<uint8_t>(position), RedOf(letter), 0.5F, RedOf(letter) / 2);
  }
  return StoredMap(stops);
}

// A '+' for a colour that no letter stands for, '!' for one that is torn apart.
std::string TextOf(const GradientRecord& map) {
  std::string text;
  for (int i = 0; i < 50 && map.stopPosition[i] != 255; ++i) {
    char letter = 'a';
    while (letter <= 'z' && RedOf(letter) != map.stopRed[i]) ++letter;
    if (letter > 'z') letter = '+';
    if (map.stopBlue[i] != map.stopRed[i] / 2) letter = '!';
    text += (text.empty() ? "" : " ") + std::to_string(map.stopPosition[i]) + letter;
  }
  return text;
}

struct ScriptCase {
  const char* what;
  const char* before;
  const char* script;
  const char* after;
};

constexpr ScriptCase kScripts[] = {
    {"free space", "0a 50b", "d 32 5 u", "0a 30+ 50b"},
    {"beyond both ends", "50a 150b", "d 0 5 u d 208 29 u", "0a 50a 150b 200b"},
    {"just left of a stop", "50b", "d 47 10 u", "45b 50b"},
    {"a stop's left end", "50b", "d 48 10 m 49 10 u", "47b"},
    {"a stop's right end", "50b", "d 62 10 m 63 10 u", "61b"},
    {"just right of a stop", "50b", "d 63 10 u", "50b 61b"},
    {"the lowest of close stops", "100a 104b", "d 106 24 m 152 24 u", "104b 150a"},
    {"no movement", "0a 50b 100c", "d 56 24 m 56 24 u", "0a 50b 100c"},
    {"right past a stop", "0a 50b 100c 150d", "d 54 24 m 122 24 u", "0a 100c 120b 150d"},
    {"right onto a stop, behind it", "0a 50b 100c", "d 54 24 m 102 24 u", "0a 100c 100b"},
    {"left onto a stop, still behind it", "0a 50b 100c", "d 104 24 m 52 24 u", "0a 50b 50c"},
    {"left past all beyond the end", "0a 50b 100c", "d 104 24 m -99 24 u", "0a 0c 50b"},
    {"as far down as the limit", "0a 50b", "d 54 24 m 62 40 u", "0a 60b"},
    {"off", "0a 50b", "d 54 24 m 62 41 u", "0a"},
    {"off, at the limit not yet back", "0a 50b", "d 54 24 m 62 41 m 72 40 u", "0a"},
    {"off and back", "0a 50b 100c", "d 54 24 m 62 41 m 182 39 m 192 9 u", "0a 100c 190b"},
    {"each drag for itself", "0a 50b", "d 54 24 m 62 99 u m 80 9 d 6 0 m 62 99 u", ""},
    {"an empty map", "", "d 100 5 m 120 5 u", "118+"},
    {"a picked colour", "0a 50b 100c", "D 54 24 m 120 24 m 62 99 u", "0a 50p 100c"},
};

TEST(GradientStrip, PressesAndDragsEditTheStops) {
  for (const ScriptCase& c : kScripts) {
    Editor editor({MapOf(c.before)});
    editor.pickedColor = {RedOf('p'), 0.5F, RedOf('p') / 2};
    editor.Play(c.script);
    std::string after = TextOf(*editor.map);
    EXPECT_EQ(after, c.after) << c.what;
    EXPECT_TRUE(editor.RampIsThatOfItsStops()) << c.what;
    EXPECT_EQ(editor.calls.substr(0, 2), "np") << c.what;
  }
}

TEST(GradientStrip, ANewStopHasTheColourThatTheRampHadThere) {
  Editor editor({MapOf("0a 200y")});
  editor.Press(Editor::kFreePlace);
  const float before = editor.map->colorMapRed[77];
  editor.Play("d 79 5");
  EXPECT_EQ(editor.map->stopRed[1], before);
}

TEST(GradientStrip, AFullTableTakesNoStopAndNothingIsDragged) {
  std::string full;
  for (int i = 0; i < 50; ++i) full += std::to_string(i) + "a ";
  Editor editor({MapOf(full)});
  const StoredMap before = editor.maps[0];
  editor.Play("d 150 5 m 20 5 m 20 99 m 20 5 u");
  editor.map->stopPosition[49] = 255;
  editor.Play("m 20 5");
  editor.map->stopPosition[49] = 49;
  EXPECT_EQ(TextOf(*editor.map), TextOf(StoredMap(before).Record()));
}

TEST(GradientStrip, AnyPickedNumbersAreKeptAndACancelledPickChangesNothing) {
  const float numbers[] = {std::nanf(""), -3.0F, 1e30F, std::numeric_limits<float>::infinity()};
  for (const float number : numbers) {
    Editor editor({MapOf("0a 50b")});
    editor.pickedColor = {number, 0.5F, -number};
    editor.accepts = false;
    editor.Play("D 54 24 u");
    EXPECT_EQ(TextOf(*editor.map), "0a 50b") << number;
    editor.accepts = true;
    editor.Play("D 54 24 u");
    EXPECT_EQ(std::bit_cast<uint32_t>(editor.map->stopRed[1]), std::bit_cast<uint32_t>(number))
        << number;
    ImageBuffer picture;
    editor.PaintAlone(picture);
  }
}

// A drag that goes on in a map with fewer stops has none to move there, nor one to bring back.
TEST(GradientStrip, ADragThatChangesToAnotherMapLeavesItAlone) {
  Editor editor({MapOf("0a 50b 100c"), MapOf("50d")});
  editor.Play("d 104 24 m 110 24");
  editor.SetInstance(1);
  editor.Play("m 120 24 m 120 99 m 120 9 u");
  EXPECT_EQ(TextOf(*editor.map), "50d");
}

// The host's dialog lets it send events for another instance before it answers.
TEST(GradientStrip, APickedColourGoesToTheMapThatWasClicked) {
  Editor editor({MapOf("50b"), MapOf("50c")});
  editor.pickedColor = {RedOf('p'), 0.5F, RedOf('p') / 2};
  editor.onCall = [&](char call) {
    if (call != 'k') return;
    editor.SetInstance(1);
    editor.Drag(Editor::kFreePlace);
    editor.SetInstance(0);
  };
  editor.Play("D 54 24 u");
  EXPECT_EQ(TextOf(editor.maps[0].Record()) + TextOf(editor.maps[1].Record()), "50p50c");
}

}  // namespace
