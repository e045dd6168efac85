// Catches buttons that show the wrong state: plates, icons and colours.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "tests/toolkit/ButtonPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButtonWithBG.h"

namespace {

struct PlateCase {
  const char* script;
  bool toggle;
  uint32_t plate;
};

constexpr PlateCase kPlateCases[] = {
    {"", false, 0xFF525252},     {"e", false, 0xFF6E6E6E},     {"d", false, 0xFF787878},
    {"ed", false, 0xFF787878},   {"edo", false, 0xFF525252},   {"edu", false, 0xFF525252},
    {"edul", false, 0xFF525252}, {"edule", false, 0xFF6E6E6E}, {"edle", false, 0xFF6E6E6E},
    {"edul", true, 0xFF787878},  {"edule", true, 0xFF6E6E6E},  {"eduledu", true, 0xFF525252},
};

template <typename Button>
void ExpectPlates(uint32_t disabledPlate) {
  for (const PlateCase& c : kPlateCases) {
    ButtonPanel panel;
    panel.Add<Button>(c.toggle);
    panel.Play(c.script);
    EXPECT_EQ(panel.PixelAt(13, 15), ColorBGRA(c.plate)) << c.script << c.toggle;
    panel.Play("x");
    EXPECT_EQ(panel.PixelAt(13, 15), ColorBGRA(disabledPlate)) << c.script << c.toggle;
  }
}

TEST(ButtonLook, AfterAPressThePlateShowsThePointerOnlyWhenItComesBack) {
  ExpectPlates<QvButton>(0xFF313131);
  ExpectPlates<QvIconButtonWithBG>(0xFF373737);
}

// The icons that a button looks for, one after the other; without any it shows the last one's lack.
std::string IconsLookedFor(bool enabled, bool on, bool down, bool over) {
  std::string wanted = enabled ? "" : on ? "40" : "0";
  if (on) return wanted + (over ? "53" : "3");
  return wanted + (over ? "2" : "") + (down ? "3" : "") + "1";
}

TEST(ButtonLook, EveryChoiceOfIconsShowsTheFirstThatTheStateLooksFor) {
  for (int32_t bits = 0; bits < 16 * 64; ++bits) {
    const bool toggle = (bits & 1) != 0;
    const bool down = (bits & 2) != 0;
    const bool over = (bits & 4) != 0;
    const bool enabled = (bits & 8) != 0;
    const int32_t present = bits >> 4;
    ButtonPanel panel;
    auto& button = panel.Add<QvIconButton>(toggle);
    std::array<NativeImageBuffer, 6> icons;
    button.SetOwnsIcons(false);
    for (int32_t i = 0; i < 6; ++i) {
      if ((present >> i & 1) != 0) button.SetIcon(i, &icons[static_cast<size_t>(i)]);
    }
    if (down) panel.Play(toggle ? "edul" : "edl");
    if (over) panel.Play("e");
    if (!enabled) panel.Play("x");
    const std::string wanted = IconsLookedFor(enabled, toggle && down, down, over);
    const NativeImageBuffer* expected = nullptr;
    for (auto it = wanted.rbegin(); it != wanted.rend(); ++it) {
      if ((present >> (*it - '0') & 1) != 0) expected = &icons[static_cast<size_t>(*it - '0')];
    }
    EXPECT_EQ(button.GetCurrentIcon(), expected) << bits;
  }
}

TEST(ButtonLook, AColourComesFromTheFirstStateOfItsChainThatHasOne) {
  constexpr const char* kChains[] = {"01", "1", "21", "31", "41", "5231", "61"};
  for (uint32_t present = 0; present < 128; ++present) {
    ButtonColors colors;
    const auto color = [](uint32_t i, uint32_t mask) {
      return ColorBGRA(((mask >> i & 1U) != 0 ? 0xFF000000U : 0U) | (i + 1));
    };
    for (uint32_t i = 0; i < 7; ++i) {
      colors[i] = {color(i, present), color(i, ~present), color(i, 127)};
    }
    for (int32_t state = 0; state < 7; ++state) {
      const auto expected = [&](uint32_t mask) {
        for (const char* at = kChains[state]; *at != 0; ++at) {
          const auto i = static_cast<uint32_t>(*at - '0');
          if ((mask >> i & 1U) != 0) return color(i, mask);
        }
        return ColorBGRA();
      };
      const StateColors wanted = {expected(present), expected(~present), expected(127)};
      EXPECT_EQ(ResolveStateColors(colors, state), wanted) << present << " " << state;
    }
  }
}

}  // namespace
