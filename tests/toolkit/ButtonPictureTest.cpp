// Catches buttons that paint at the wrong place, in the wrong shade, outside what they were asked
// for, or lose their pictures.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

#include "tests/toolkit/ButtonPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButtonWithBG.h"

namespace {

constexpr StateColors kFilled = {ThemeColors::White, ThemeColors::Gray204, ThemeColors::White};

// Adds the kinds of buttons by their number, each with all that it can show.
constexpr int32_t kKinds = 5;

ButtonControl& AddKind(ButtonPanel& panel, int32_t kind) {
  // Two halves of 3 pixels, and one that is over.
  static ImageBuffer strip;
  strip.Allocate(7, 3, false);
  strip.FillRect({0, 0, 3, 3}, ThemeColors::Red, 256, nullptr);
  strip.FillRect({3, 0, 6, 3}, ThemeColors::Green, 256, nullptr);
  if (kind == 0) return panel.Add<ButtonControl>();
  if (kind == 1) return panel.Add<ButtonControl>(false, &strip);
  if (kind == 2) return panel.Add<QvButton>();
  auto& button = kind == 3 ? panel.Add<QvIconButton>() : panel.Add<QvIconButtonWithBG>();
  auto* icon = new NativeImageBuffer;
  icon->Allocate(5, 3, false);
  icon->FillRect({0, 0, 5, 3}, ThemeColors::Green, 256, nullptr);
  button.SetIcon(kButtonNormal, icon);
  return button;
}

std::string BytesOf(const ImageBuffer& picture) {
  const auto height = static_cast<size_t>(picture.Height());
  return {reinterpret_cast<const char*>(picture.Row(0)),
          height * static_cast<size_t>(picture.RowBytes())};
}

std::string BytesOf(ButtonPanel& panel) {
  ImageBuffer picture;
  panel.PaintPart(kPanelPlace, 1, picture);
  return BytesOf(picture);
}

struct Probe {
  const char* what;
  const char* script;
  std::function<void(ButtonControl&)> dress;
  int32_t kind;
  int32_t x, y;  // the button is 10, 5, 50, 25
  ColorBGRA expected;
};

const auto kAsItIs = [](ButtonControl&) {};
const auto kFill = [](ButtonControl& button) { button.SetStateColors(kButtonNormal, kFilled); };
const auto kSelect = [](ButtonControl& button) { button.SetState(kStateSelected); };
const auto kFocus = [](ButtonControl& button) { button.GetTopOwnerPtr()->SetFocus(&button, true); };

const Probe kProbes[] = {
    {"pressed frame", "d", kAsItIs, 0, 49, 24, ThemeColors::Gray76},
    {"gap within the frame", "d", kAsItIs, 0, 11, 6, ThemeColors::Black},
    {"pressed fill", "d", kAsItIs, 0, 12, 7, ThemeColors::Gray204},
    {"pressed and over", "edle", kAsItIs, 0, 12, 7, ThemeColors::Gray179},
    {"no gap where the fill is always there", "d", kFill, 0, 11, 6, ThemeColors::Gray204},
    {"focus doubles the frame", "", kFocus, 0, 11, 6, ThemeColors::White},
    {"disabled, 204 by 180 of 256", "x", kFill, 0, 11, 6, ColorBGRA(0xFF8F8F8F)},
    {"strip, left half", "", kAsItIs, 1, 28, 5, ThemeColors::Red},
    {"strip, right half", "d", kAsItIs, 1, 30, 7, ThemeColors::Green},
    {"strip, faint", "x", kAsItIs, 1, 28, 5, ColorBGRA(0xFF940000)},
    {"icon, last", "", kAsItIs, 3, 32, 15, ThemeColors::Green},
    {"icon, faint", "x", kAsItIs, 3, 28, 13, ColorBGRA(0xFF003000)},
    {"selected frame", "", kSelect, 3, 10, 5, ColorBGRA(0xFF134E76)},
    {"within the selected frame", "", kSelect, 3, 11, 6, ThemeColors::Black},
    {"no selected frame on a plate", "", kSelect, 4, 10, 15, ColorBGRA(0xFF525252)},
    {"icon on its plate", "", kAsItIs, 4, 28, 13, ThemeColors::Green},
};

TEST(ButtonPicture, EachPartStandsWhereItBelongs) {
  for (const Probe& probe : kProbes) {
    ButtonPanel panel;
    probe.dress(AddKind(panel, probe.kind));
    panel.Play(probe.script);
    EXPECT_EQ(panel.PixelAt(probe.x, probe.y), probe.expected) << probe.what;
  }
}

TEST(ButtonPicture, ALabelHasTheColourOfTheStateAndIsFaintWhereDisabled) {
  constexpr std::pair<const char*, uint32_t> kColours[] = {
      {"", 0xFFC8C8C8}, {"d", 0xFFFAFAFA}, {"x", 0xFF9A9A9A}};
  for (const auto& [script, color] : kColours) {
    ButtonPanel panel;
    panel.Add<QvButton>().SetLabels("HHH", "HHH");
    panel.Play(script);
    ImageBuffer picture;
    panel.PaintPart(kPanelPlace, 1, picture);
    EXPECT_GT(std::count(picture.Row(0), picture.Row(40), ColorBGRA(color)), 3 * 2 * 6) << script;
  }
}

TEST(ButtonPicture, AnEmptyLabelReadsOnOrOffAndInsetsMoveALabel) {
  ButtonPanel panel;
  auto& button = panel.Add<ButtonControl>();
  for (const char* state : {"", "d"}) {
    panel.Play(state);
    button.SetLabels("", "");
    button.SetLabelInsets(0, 0);
    const std::string empty = BytesOf(panel);
    button.SetLabels("On", "Off");
    button.SetLabelInsets(7, 7);
    EXPECT_EQ(BytesOf(panel), empty) << state;
    button.SetLabelInsets(7, 0);
    EXPECT_NE(BytesOf(panel), empty) << state;
    button.SetLabels("Off", "On");
    button.SetLabelInsets(0, 0);
    EXPECT_NE(BytesOf(panel), empty) << state;
  }
}

TEST(ButtonPicture, WhatIsAskedForIsPaintedAsInTheWholeAndNothingElseWhateverTheSize) {
  constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
  constexpr Rect kPlaces[] = {
      kButtonPlace, {kMin, kMin, kMax, kMax}, {20, kMin, 21, kMax}, {50, 25, 10, 5}};
  for (int32_t bits = 0; bits < kKinds * 64; ++bits) {
    const int32_t scale = 1 + bits % 2;
    ButtonPanel panel;
    ButtonControl& button = AddKind(panel, bits / 64);
    panel.Play((bits & 2) != 0 ? "d" : "x");
    button.SetBounds(kPlaces[bits / 4 % 4]);
    button.SetFrame((bits & 16) != 0 ? 5.0F : 0.0F, (bits & 32) != 0 ? kMax : 2);
    if ((bits & 32) != 0) button.SetLabelInsets(kMax, kMin);
    ImageBuffer whole;
    panel.PaintPart(kPanelPlace, scale, whole);
    for (const Rect& asked : {Rect{0, 0, 13, 9}, Rect{13, 0, 60, 9}, Rect{31, 9, 60, 40}}) {
      ImageBuffer part;
      panel.PaintPart(asked, scale, part);
      ImageBuffer expected;
      expected.Allocate(whole.Width(), whole.Height(), false);
      const Rect piece = whole.ToPhysical(asked);
      whole.CopyTo(expected, piece, piece.left, piece.top, 256, nullptr);
      ASSERT_TRUE(BytesOf(part) == BytesOf(expected)) << bits << " " << asked.left;
    }
  }
}

struct CountedIcon : NativeImageBuffer {
  explicit CountedIcon(int& count) : gone(count) {}
  ~CountedIcon() override { ++gone; }
  int& gone;
};

TEST(ButtonPicture, AnOwnedIconGoesOnceWhenItsLastPlaceDoes) {
  int gone = 0;
  CountedIcon kept(gone);
  {
    QvIconButton button(nullptr, kButtonPlace, nullptr, false, nullptr);
    auto* icon = new CountedIcon(gone);
    button.SetIcon(kButtonNormal, icon);
    button.SetIcon(kButtonNormal, icon);
    button.SetIcon(kButtonOver, icon);
    button.SetIcon(kButtonNormal, new CountedIcon(gone));
    for (const int32_t outside : {-1, 7}) button.SetIcon(outside, &kept);
    EXPECT_EQ(gone, 0);
    button.SetIcon(kButtonOver, nullptr);
    EXPECT_EQ(gone, 1);
    button.SetIconPair(&kept, &kept, false);
    EXPECT_EQ(gone, 2);
  }
  EXPECT_EQ(gone, 2);
}

}  // namespace
