// Pages of text: captions in place, pairs of letters, and the table of each font.
#include <array>
#include <string>

#include "drawing/Labeler.h"
#include "tools/specimens/Pages.h"

namespace {

constexpr ColorBGRA kText(0xFFD2D2D2);
constexpr ColorBGRA kBlack(0xFF000000);
constexpr ColorBGRA kPlate(0xFF3A3A3A);
constexpr ColorBGRA kLightPlate(0xFFC8C8C8);
constexpr ColorBGRA kGrey(0xFF282828);

struct NamedFont {
  const char* name;
  const Font& (*font)();
};

constexpr std::array<NamedFont, 5> kFonts = {{{"FontSmall", FontSmall},
                                              {"FontDefault", FontDefault},
                                              {"FontMenu", FontMenu},
                                              {"FontBold", FontBold},
                                              {"FontSymbols", FontSymbols}}};

// Fonts are chosen by the page's scale.
Labeler& Choose(ImageBuffer& page, const Font& font) {
  SetScreenScale(page.Scale());
  SharedLabeler().SetFont(&font);
  return SharedLabeler();
}

void Start(ImageBuffer& page) {
  page.FillRect({0, 0, 640, 400}, kGrey, 256, nullptr);
}

TextStyle Ink(ColorBGRA color, int32_t opacity = 256) {
  TextStyle style;
  style.color = color;
  style.opacity = opacity;
  return style;
}

void DrawPlate(ImageBuffer& page, const Font& font, const char* text, const Rect& plate,
               TextAlignment alignment) {
  page.FillRect(plate, kPlate, 256, nullptr);
  const Rect inside = {plate.left + 8, plate.top, plate.right - 8, plate.bottom};
  Labeler& labeler = Choose(page, font);
  const Rect shadow = {inside.left, inside.top + 1, inside.right, inside.bottom + 1};
  labeler.DrawStringInRect(page, text, shadow, alignment, Ink(kBlack, 160));
  labeler.DrawStringInRect(page, text, inside, alignment, Ink(kText));
}

void DrawCaptions(ImageBuffer& page) {
  DrawPlate(page, FontBold(), "Color Map", {10, 10, 310, 30}, TextAlignment::kLeft);
  DrawPlate(page, FontBold(), "Commands", {330, 10, 630, 30}, TextAlignment::kLeft);
  DrawPlate(page, FontSmall(), "PRESETS", {10, 36, 110, 54}, TextAlignment::kLeft);
  int32_t left = 120;
  for (const char* text : {"Randomize", "Copy", "Paste", "Apply", "Undo"}) {
    DrawPlate(page, FontDefault(), text, {left, 36, left + 90, 54}, TextAlignment::kCentre);
    left += 96;
  }
}

void DrawMenu(ImageBuffer& page) {
  int32_t top = 64;
  for (const char* text : {"Reset to default", "Rainbow", "Fire and ice", "Save preset..."}) {
    DrawPlate(page, FontMenu(), text, {10, top, 150, top + 18}, TextAlignment::kLeft);
    top += 18;
  }
  Choose(page, FontSymbols())
      .DrawStringInRect(page, "4 u", {110, 82, 146, 100}, TextAlignment::kCentre, Ink(kText));
  page.FillRect({160, 64, 630, 136}, kLightPlate, 256, nullptr);
  top = 66;
  for (const NamedFont& entry : kFonts) {
    if (entry.font == FontSymbols) continue;
    Choose(page, entry.font())
        .DrawString(page, "The quick brown fox jumps over the lazy dog, 0123456789", 168, top,
                    TextAlignment::kLeft, Ink(kBlack));
    top += 17;
  }
}

// At the right of each line of pairs is what the kerning makes of them.
void DrawPairs(ImageBuffer& page) {
  constexpr std::array<const char*, 28> kPairs = {
      "AV", "To", "Ty", "ll", "nn", "oo", "rn", "vn", "nv", "LT", "ff", "fi", "ra", "ay",
      "Wa", "Yo", "PA", "ky", "xe", "te", "st", "mp", "py", "om", "iz", "ze", "VA", "Te"};
  int32_t top = 146;
  for (const NamedFont& entry : kFonts) {
    if (entry.font == FontSymbols) continue;
    const Labeler& labeler = Choose(page, entry.font());
    int32_t x = 10;
    for (const char* pair : kPairs) {
      labeler.DrawString(page, pair, x, top, TextAlignment::kLeft, Ink(kText));
      const std::string kerning = std::to_string(labeler.GetKerning(pair[0], pair[1]));
      labeler.DrawString(page, kerning.c_str(), x, top + 13, TextAlignment::kLeft, Ink(kText, 110));
      x += 22;
    }
    top += 30;
  }
}

void DrawPlainText(ImageBuffer& page) {
  int32_t top = 272;
  for (const NamedFont& entry : kFonts) {
    if (entry.font == FontSymbols) continue;
    const Labeler& labeler = Choose(page, entry.font());
    for (const char* text :
         {"Illimitable Wavy Type: AVATAR, Tomorrow's (minimum) [fifty-five] {1/4} 50% & more @ #7",
          "Frequency Range Output Falloff Threshold Sensitivity Quantize Vertical Wrap"}) {
      labeler.DrawString(page, text, 10, top, TextAlignment::kLeft, Ink(kText));
      top += 15;
    }
  }
}

}  // namespace

void DrawTextPage(ImageBuffer& page) {
  Start(page);
  DrawCaptions(page);
  DrawMenu(page);
  DrawPairs(page);
  DrawPlainText(page);
}

void DrawGlyphsPage(ImageBuffer& page) {
  Start(page);
  int32_t top = 8;
  for (const NamedFont& entry : kFonts) {
    Choose(page, FontDefault())
        .DrawString(page, entry.name, 8, top, TextAlignment::kLeft, Ink(kText, 140));
    const Labeler& labeler = Choose(page, entry.font());
    for (int32_t code = 32; code < 127; ++code) {
      const char text[2] = {static_cast<char>(code), '\0'};
      const int32_t place = code - 32;
      labeler.DrawString(page, text, 90 + place % 32 * 17, top + place / 32 * 20,
                         TextAlignment::kLeft, Ink(kText));
    }
    top += 76;
  }
}
