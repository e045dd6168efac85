// Where each element of the graph stands in a frame.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "analysis/BandTable.h"
#include "shell/ParameterTable.h"

// Pixels of the frame, row 0 at the top; everything truncated toward zero.
//
//      gridFirstColumn                                      gridLastColumn
//      |     left                      right                |
//      |     |  caption                |  caption           |      captionRow
//      |-----+-------------------------+--------------------|      top
//      |     |  bands of bandWidth     |   | | | | | |      |
//      |     |                         |   output bars      |
//      |-----+-------------------------+--------------------|      bottom
struct GraphLayout {
  int32_t top = 0;
  int32_t bottom = 0;  // the lowest row of a bar, level 0.0
  int32_t left = 0;
  int32_t right = 0;  // not part of the bands
  int32_t graphHeight = 0;
  double bandWidth = 0.0;                                // not rounded
  std::array<int32_t, size_t{kBandCount} + 1> column{};  // first column of each band, then `right`
  std::array<int32_t, kRangeCount> outputColumn{};       // first column of each output bar
  int32_t outputBarWidth = 0;
  int32_t gridFirstColumn = 0;
  int32_t gridLastColumn = 0;  // included
  int32_t captionRow = 0;      // top row of both captions, above the frame in a low one
};

// The layout of a frame of width x height pixels; any size is taken.
GraphLayout MakeGraphLayout(int32_t width, int32_t height);
