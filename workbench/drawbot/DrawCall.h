// One drawing call as it was made: what a test reads, and a line of text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "workbench/drawbot/DrawObjects.h"

// Holds copies: the effect's objects may be gone.
struct DrawCall {
  std::string name;                        // the suite's, such as "FillPath"
  std::optional<DRAWBOT_ColorRGBA> color;  // of the brush, the pen or the rectangle
  std::vector<PathStep> path;              // in the effect's coordinates
  std::u16string text;
  // What else the call was given, in the order of its arguments:
  //   FillPath                          the fill type
  //   StrokePath                        the pen's width
  //   Clip                              left, top, width, height
  //   Transform                         the nine numbers, row by row
  //   DrawString                        font size, x, y, alignment, truncation, width
  //   DrawImage                         the image's width and height, x, y, opacity
  //   SetInterpolationPolicy, SetAntiAliasPolicy   the policy
  std::vector<double> numbers;
  std::vector<uint32_t> pixels = {};  // of a DrawImage, in the canvas's layout, without gaps
};

// One line without its end, such as
// "FillPath color 0.1 0.1 0.1 1 path rect(0 40 300 15) numbers 1".
std::string DrawCallText(const DrawCall& call);

// The same, each line with its end, and behind a DrawImage its rows of pixels, such as
// "  ff2d2d2d ff000000".
std::string DrawCallTextWithPixels(const DrawCall& call);
