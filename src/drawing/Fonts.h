// The fonts that the panels use, and which larger font takes the place of which.
#pragma once

#include "drawing/FontRecord.h"

const Font& FontSmall();    // 10: titles of drop-downs
const Font& FontDefault();  // 11: buttons and panels
const Font& FontMenu();     // 11, a second cut: menu items
const Font& FontBold();     // 12: headings
const Font& FontSymbols();  // 10: "4" is a check mark, "u" a diamond

// The same faces for a screen of twice the resolution. FontMenu shares that of FontDefault.
const Font& FontSmall2x();    // 19
const Font& FontDefault2x();  // 21
const Font& FontBold2x();     // 21
const Font& FontSymbols2x();  // 18

// A larger font of the same face, and how many of its pixels stand for one of the font's.
struct FontTwin {
  const Font* font = nullptr;
  float ratio = 1.0F;
};

// What `font` is replaced by at a scale of the screen; the font itself at ratio 1 where it has no
// twin for that scale.
FontTwin TwinAtScale(const Font& font, float screenScale);
