// Which faces the stored fonts are made from, and how large: make_fonts reads it.
#pragma once

#include <array>

struct Recipe {
  const char* name;  // of the file
  const char* face;  // null for our own symbols
  double pixelsPerEm;
  int nominalSize;
  int rows;
  int stride;
  int baseline;       // rows above it
  int kernThreshold;  // of the Labeler, where the font is used
};

inline constexpr const char* kRegular = "Arimo-Regular.ttf";
inline constexpr const char* kBold = "Arimo-Bold.ttf";
inline constexpr const char* kSecondCut = "LiberationSans-Regular.ttf";

inline constexpr std::array<Recipe, 9> kRecipes = {{
    {"FontSmall", kRegular, 10.5, 10, 10, 560, 8, 128},
    {"FontDefault", kRegular, 12.0, 11, 12, 608, 9, 128},
    {"FontMenu", kSecondCut, 12.0, 11, 12, 600, 9, 128},
    {"FontBold", kBold, 12.0, 12, 12, 648, 9, 128},
    {"FontSymbols", nullptr, 8.0, 10, 8, 740, 8, 128},
    {"FontSmall2x", kRegular, 19.0, 19, 21, 984, 16, 64},
    {"FontDefault2x", kRegular, 21.0, 21, 23, 1076, 17, 64},
    {"FontBold2x", kBold, 22.0, 21, 24, 1156, 18, 64},
    {"FontSymbols2x", nullptr, 15.0, 18, 15, 1292, 15, 64},
}};
