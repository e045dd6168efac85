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
  int stem;           // of a letter, in whole pixels
  int deepestNotch;   // pixels by which a neighbour may move in under the arm of a small letter
};

inline constexpr const char* kRegular = "Arimo-Regular.ttf";
inline constexpr const char* kBold = "Arimo-Bold.ttf";
inline constexpr const char* kSecondCut = "LiberationSans-Regular.ttf";

inline constexpr std::array<Recipe, 9> kRecipes = {{
    {"FontSmall", kRegular, 10.5, 10, 10, 560, 8, 128, 1, 0},
    {"FontDefault", kRegular, 12.0, 11, 12, 608, 9, 128, 1, 0},
    {"FontMenu", kSecondCut, 12.0, 11, 12, 600, 9, 128, 1, 0},
    {"FontBold", kBold, 12.0, 12, 12, 648, 9, 128, 2, 0},
    {"FontSymbols", nullptr, 8.0, 10, 8, 740, 8, 128, 1, 0},
    {"FontSmall2x", kRegular, 18.75, 19, 21, 984, 16, 64, 2, 1},
    {"FontDefault2x", kRegular, 21.0, 21, 23, 1076, 17, 64, 2, 1},
    {"FontBold2x", kBold, 21.25, 21, 24, 1156, 18, 64, 3, 1},
    {"FontSymbols2x", nullptr, 15.0, 18, 15, 1292, 15, 64, 2, 1},
}};
