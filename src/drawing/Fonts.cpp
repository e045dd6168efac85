// The stored fonts, checked while they are compiled.
#include "drawing/Fonts.h"

#include <array>

namespace {

constexpr StoredFont<10, 560> kSmall =
#include "resources/fonts/FontSmall.inc"
    ;
constexpr StoredFont<12, 608> kDefault =
#include "resources/fonts/FontDefault.inc"
    ;
constexpr StoredFont<12, 600> kMenu =
#include "resources/fonts/FontMenu.inc"
    ;
constexpr StoredFont<12, 648> kBold =
#include "resources/fonts/FontBold.inc"
    ;
constexpr StoredFont<8, 740> kSymbols =
#include "resources/fonts/FontSymbols.inc"
    ;
constexpr StoredFont<21, 984> kSmall2x =
#include "resources/fonts/FontSmall2x.inc"
    ;
constexpr StoredFont<23, 1076> kDefault2x =
#include "resources/fonts/FontDefault2x.inc"
    ;
constexpr StoredFont<24, 1156> kBold2x =
#include "resources/fonts/FontBold2x.inc"
    ;
constexpr StoredFont<15, 1292> kSymbols2x =
#include "resources/fonts/FontSymbols2x.inc"
    ;

constexpr Font kSmallFont(kSmall);
constexpr Font kDefaultFont(kDefault);
constexpr Font kMenuFont(kMenu);
constexpr Font kBoldFont(kBold);
constexpr Font kSymbolsFont(kSymbols);
constexpr Font kSmall2xFont(kSmall2x);
constexpr Font kDefault2xFont(kDefault2x);
constexpr Font kBold2xFont(kBold2x);
constexpr Font kSymbols2xFont(kSymbols2x);

// Below this a font of twice the size would be too large.
constexpr float kTwinsAboveScale = 1.5F;

struct TwinEntry {
  const Font* font = nullptr;
  FontTwin twin;
};

constexpr std::array<TwinEntry, 5> kTwins = {{
    {&kSmallFont, {&kSmall2xFont, 2.0F}},
    {&kDefaultFont, {&kDefault2xFont, 2.0F}},
    {&kMenuFont, {&kDefault2xFont, 2.0F}},
    {&kBoldFont, {&kBold2xFont, 2.0F}},
    {&kSymbolsFont, {&kSymbols2xFont, 1.8F}},
}};

}  // namespace

const Font& FontSmall() {
  return kSmallFont;
}
const Font& FontDefault() {
  return kDefaultFont;
}
const Font& FontMenu() {
  return kMenuFont;
}
const Font& FontBold() {
  return kBoldFont;
}
const Font& FontSymbols() {
  return kSymbolsFont;
}
const Font& FontSmall2x() {
  return kSmall2xFont;
}
const Font& FontDefault2x() {
  return kDefault2xFont;
}
const Font& FontBold2x() {
  return kBold2xFont;
}
const Font& FontSymbols2x() {
  return kSymbols2xFont;
}

FontTwin TwinAtScale(const Font& font, float screenScale) {
  if (screenScale > kTwinsAboveScale) {
    for (const TwinEntry& entry : kTwins) {
      if (entry.font == &font) return entry.twin;
    }
  }
  return {&font, 1.0F};
}
