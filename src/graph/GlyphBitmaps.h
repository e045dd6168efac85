// The graph's own font: 12 letters, a plus and 3 digits.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "graph/PixelRect.h"

constexpr size_t kGlyphRows = 5;

struct Glyph {
  std::string_view cells;  // row by row, all of one width; # is a lit pixel
  PixelRect backing;       // dimmed first; relative to the top left cell
};

// Three widths of backing, and one that is wide and short.
inline constexpr PixelRect kBackingOf3 = {-1, 5, -1, 3};
inline constexpr PixelRect kBackingOf4 = {-1, 5, -1, 4};
inline constexpr PixelRect kBackingOf5 = {-1, 5, -1, 5};
inline constexpr PixelRect kShortBacking = {-1, 4, -1, 5};

inline constexpr Glyph kGlyphA = {
    "###."
    "...#"
    "####"
    "#..#"
    "#..#",
    kBackingOf4};
inline constexpr Glyph kGlyphC = {
    ".###"
    "#..."
    "#..."
    "#..."
    ".###",
    kBackingOf4};
inline constexpr Glyph kGlyphE = {
    ".###"
    "#..."
    ".###"
    "#..."
    ".###",
    kBackingOf4};
inline constexpr Glyph kGlyphG = {
    ".###"
    "#..."
    "#.##"
    "#..#"
    ".###",
    kBackingOf4};
inline constexpr Glyph kGlyphM = {
    "#...#"
    "##.##"
    "#.#.#"
    "#...#"
    "#...#",
    kBackingOf5};
inline constexpr Glyph kGlyphN = {
    "###."
    "#..#"
    "#..#"
    "#..#"
    "#..#",
    kShortBacking};
inline constexpr Glyph kGlyphO = {
    ".##."
    "#..#"
    "#..#"
    "#..#"
    ".##.",
    kShortBacking};
inline constexpr Glyph kGlyphP = {
    "###."
    "...#"
    "###."
    "#..."
    "#...",
    kBackingOf4};
inline constexpr Glyph kGlyphR = {
    "###."
    "...#"
    "###."
    "#..#"
    "#..#",
    kBackingOf4};
inline constexpr Glyph kGlyphS = {
    ".###"
    "#..."
    ".##."
    "...#"
    "###.",
    kBackingOf4};
inline constexpr Glyph kGlyphT = {
    "#####"
    "....."
    "..#.."
    "..#.."
    "..#..",
    kBackingOf5};
inline constexpr Glyph kGlyphU = {
    "#..#"
    "#..#"
    "#..#"
    "#..#"
    ".##.",
    kShortBacking};
inline constexpr Glyph kGlyphPlus = {
    "..."
    ".#."
    "###"
    ".#."
    "...",
    kBackingOf5};

// 1, 2 and 3, by range.
inline constexpr std::array<Glyph, 3> kDigits = {{
    {".#."
     "##."
     ".#."
     ".#."
     "###",
     kBackingOf3},
    {".##."
     "#..#"
     "..#."
     ".#.."
     "####",
     kBackingOf4},
    {"###."
     "...#"
     ".##."
     "...#"
     "###.",
     kBackingOf4},
}};
