// Catches buttons that paint at the wrong place, in the wrong shade, outside what they were asked
// for, or lose their pictures.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <limits>

#include "tests/toolkit/ButtonPanel.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButtonWithBG.h"

namespace {

constexpr ColorBGRA kBlack = ThemeColors::Black;
constexpr ColorBGRA kRed = ThemeColors::Red;
constexpr ColorBGRA kGreen = ThemeColors::Green;
constexpr ColorBGRA kPressedFill = ThemeColors::Gray204;
constexpr StateColors kFilled = {ThemeColors::White, ThemeColors::Gray204, ThemeColors::White};

// Adds the kinds of buttons by their number, each with all that it can show.
constexpr int32_t kKinds = 5;

struct Pictures {
  Pictures() {
    strip.Allocate(7, 3, false);
    strip.FillRect({0, 0, 3, 3}, kRed, 256, nullptr);
    strip.FillRect({3, 0, 6, 3}, kGreen, 256, nullptr);
    icon.Allocate(5, 3, false);
    icon.FillRect({0, 0, 5, 3}, kGreen, 256, nullptr);
  }
  ImageBuffer strip;
  NativeImageBuffer icon;
};

ButtonControl& AddKind(ButtonPanel& panel, int32_t kind, Pictures& pictures) {
  const auto withIcon = [&pictures](ButtonWithIcon& button) -> ButtonControl& {
    button.SetOwnsIcons(false);
    button.SetIcon(kButtonNormal, &pictures.icon);
    return button;
  };
  if (kind == 0) return panel.Add<ButtonControl>();
  if (kind == 1) return panel.Add<ButtonControl>(false, &pictures.strip);
  if (kind == 2) return panel.Add<QvButton>();
  if (kind == 3) return withIcon(panel.Add<QvIconButton>());
  return withIcon(panel.Add<QvIconButtonWithBG>());
}

struct Probe {
  const char* what;
  int32_t kind;
  const char* script;
  std::function<void(ButtonControl&)> dress;
  int32_t x, y;  // the button is 10, 5, 50, 25
  ColorBGRA expected;
};

const auto kAsItIs = [](ButtonControl&) {};
const auto kFill = [](ButtonControl& button) { button.SetStateColors(kButtonNormal, kFilled); };
const auto kSelect = [](ButtonControl& button) { button.SetState(kStateSelected); };
const auto kFocus = [](ButtonControl& button) { button.GetTopOwnerPtr()->SetFocus(&button, true); };

const Probe kProbes[] = {
    {"frame", 0, "", kAsItIs, 10, 5, ThemeColors::Gray128},
    {"no fill", 0, "", kAsItIs, 13, 8, kBlack},
    {"pressed frame", 0, "d", kAsItIs, 49, 24, ThemeColors::Gray76},
    {"gap within the frame", 0, "d", kAsItIs, 11, 6, kBlack},
    {"pressed fill", 0, "d", kAsItIs, 12, 7, kPressedFill},
    {"pressed and over", 0, "dle", kAsItIs, 12, 7, ThemeColors::Gray179},
    {"no gap where the fill is always there", 0, "d", kFill, 11, 6, kPressedFill},
    {"focus doubles the frame", 0, "", kFocus, 11, 6, ThemeColors::White},
    {"disabled, 204 by 180 of 256", 0, "x", kFill, 11, 6, ColorBGRA(0xFF8F8F8F)},
    {"strip, left half", 1, "", kAsItIs, 28, 5, kRed},
    {"strip, right half", 1, "d", kAsItIs, 30, 7, kGreen},
    {"left of the strip", 1, "d", kAsItIs, 27, 5, kBlack},
    {"right of the strip", 1, "d", kAsItIs, 31, 5, kBlack},
    {"strip, faint", 1, "x", kAsItIs, 28, 5, ColorBGRA(0xFF940000)},
    {"icon, first", 3, "", kAsItIs, 28, 13, kGreen},
    {"icon, last", 3, "", kAsItIs, 32, 15, kGreen},
    {"left of the icon", 3, "", kAsItIs, 27, 13, kBlack},
    {"below the icon", 3, "", kAsItIs, 28, 16, kBlack},
    {"icon, faint", 3, "x", kAsItIs, 28, 13, ColorBGRA(0xFF003000)},
    {"selected frame", 3, "", kSelect, 10, 5, ColorBGRA(0xFF134E76)},
    {"within the selected frame", 3, "", kSelect, 11, 6, kBlack},
    {"no selected frame on a plate", 4, "", kSelect, 10, 15, ColorBGRA(0xFF525252)},
    {"icon on its plate", 4, "", kAsItIs, 28, 13, kGreen},
};

TEST(ButtonPicture, EachPartStandsWhereItBelongs) {
  Pictures pictures;
  for (const Probe& probe : kProbes) {
    ButtonPanel panel;
    probe.dress(AddKind(panel, probe.kind, pictures));
    panel.Play(probe.script);
    EXPECT_EQ(panel.PixelAt(probe.x, probe.y), probe.expected) << probe.what;
  }
}

TEST(ButtonPicture, PiecesAddUpToTheWhole) {
  constexpr Rect kPieces[] = {{0, 0, 13, 9}, {13, 0, 60, 9}, {0, 9, 31, 40}, {31, 9, 60, 40}};
  Pictures pictures;
  for (int32_t bits = 0; bits < kKinds * 8; ++bits) {
    const int32_t scale = 1 + bits % 2;
    ButtonPanel panel;
    ButtonControl& button = AddKind(panel, bits / 8, pictures);
    button.SetFrame(bits % 4 < 2 ? 0.0F : 5.0F, 2);
    panel.Play(bits % 8 < 4 ? "d" : "x");
    ImageBuffer whole;
    panel.PaintPart(kPanelPlace, scale, whole);
    for (const Rect& piece : kPieces) {
      ImageBuffer part;
      panel.PaintPart(piece, scale, part);
      for (int32_t y = 0; y < part.Height(); ++y) {
        const ColorBGRA* expected = whole.Row(piece.top * scale + y) + piece.left * scale;
        ASSERT_EQ(std::memcmp(part.Row(y), expected, static_cast<size_t>(part.Width()) * 4), 0)
            << bits << " row " << y << " from " << piece.left;
      }
    }
  }
}

TEST(ButtonPicture, WhateverItsSizeNothingIsPaintedBeyondWhatWasAsked) {
  constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
  constexpr Rect kPlaces[] = {{kMin, kMin, kMax, kMax},
                              {50, 25, 10, 5},
                              {20, 20, 20, 20},
                              {0, kMin, 1, kMax},
                              {-9, -9, 99, 99}};
  Pictures pictures;
  for (const Rect& place : kPlaces) {
    for (int32_t bits = 0; bits < kKinds * 4; ++bits) {
      ButtonPanel panel;
      ButtonControl& button = AddKind(panel, bits / 4, pictures);
      button.SetBounds(place);
      button.SetFrame(bits % 2 == 0 ? 0.0F : 1e30F, bits % 4 < 2 ? kMax : kMin);
      button.SetLabelInsets(kMax, kMin);
      button.SetLabelTrackingBoth(kMin);
      button.SetState(kStateSelected);
      button.SetStateColors(kButtonNormal, kFilled);
      ImageBuffer picture;
      picture.Allocate(16, 16, false);
      button.Paint({2, 2, 10, 10}, picture, {4, 4});
      const Rect asked = {4, 4, 12, 12};
      for (int32_t i = 0; i < 256; ++i) {
        if (Contains(asked, {i % 16, i / 16})) continue;
        ASSERT_EQ(picture.Row(i / 16)[i % 16], ColorBGRA()) << bits << " at " << i;
      }
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
  {
    QvIconButton button(nullptr, kButtonPlace, nullptr, false, nullptr);
    auto* icon = new CountedIcon(gone);
    button.SetIcon(kButtonNormal, icon);
    button.SetIcon(kButtonNormal, icon);
    button.SetIcon(kButtonOver, icon);
    button.SetIcon(kButtonNormal, nullptr);
    EXPECT_EQ(gone, 0);
    button.SetIcon(kButtonOver, new CountedIcon(gone));
    EXPECT_EQ(gone, 1);
    CountedIcon outside(gone);
    button.SetIcon(7, &outside);
    button.SetIcon(-1, &outside);
  }
  EXPECT_EQ(gone, 3);
  CountedIcon kept(gone);
  {
    QvIconButton button(nullptr, kButtonPlace, nullptr, false, nullptr);
    button.SetIconPair(&kept, &kept, false);
  }
  EXPECT_EQ(gone, 3);
}

}  // namespace
