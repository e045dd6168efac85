// Catches buttons that choose the wrong icon or colour for their state.
#include <gtest/gtest.h>

#include <array>

#include "tests/toolkit/ButtonPanel.h"
#include "toolkit/QvIconButton.h"

namespace {

struct IconCase {
  const char* script;
  bool toggle;
  std::string_view wanted;  // icons, the one that goes first in front
};

constexpr IconCase kIconCases[] = {
    {"", false, "1"},       {"e", false, "21"},       {"edl", false, "31"}, {"edle", false, "231"},
    {"x", false, "01"},     {"ex", false, "021"},     {"edul", true, "3"},  {"edule", true, "53"},
    {"edulx", true, "403"}, {"edulex", true, "4053"}, {"e", true, "21"},    {"x", true, "01"},
};

TEST(ButtonLook, WithoutTheIconThatGoesFirstTheNextOneIsShown) {
  for (const IconCase& c : kIconCases) {
    std::array<NativeImageBuffer, 6> icons;
    ButtonPanel panel;
    auto& button = panel.Add<QvIconButton>(c.toggle);
    button.SetOwnsIcons(false);
    for (int32_t i = 0; i < 6; ++i) button.SetIcon(i, &icons[static_cast<size_t>(i)]);
    panel.Play(c.script);
    for (const char digit : c.wanted) {
      EXPECT_EQ(button.GetCurrentIcon(), &icons[static_cast<size_t>(digit - '0')]) << c.script;
      button.SetIcon(digit - '0', nullptr);
    }
    EXPECT_EQ(button.GetCurrentIcon(), nullptr) << c.script;
  }
}

TEST(ButtonLook, WithoutTheColourThatGoesFirstTheNextStatesIsShown) {
  constexpr std::string_view kChains[] = {"01", "1", "21", "31", "41", "5231", "61"};
  for (int32_t state = 0; state < kButtonStateCount; ++state) {
    ButtonColors colors;
    for (uint32_t i = 0; i < 7; ++i) colors[i].text = ColorBGRA(0xFF000000U + i);
    for (const char digit : kChains[state]) {
      ColorBGRA& first = colors[static_cast<size_t>(digit - '0')].text;
      EXPECT_EQ(ResolveStateColors(colors, state).text, first) << state << digit;
      first = {};
    }
    EXPECT_EQ(ResolveStateColors(colors, state), StateColors()) << state;
  }
}

}  // namespace
