// The keyframes that one run has written, as the writers of files take them.
#pragma once

#include <cstdint>
#include <vector>

inline constexpr int kLastRange = 3;  // ranges count from 1

// One keyframe of the parameter "Output <range>".
//
// range  1 to 3
// tick   layer time in ticks of 1 / scale seconds; may be negative
// scale  at least 1
// value  finite
struct KeyframeRow {
  int range = 1;
  int32_t tick = 0;
  uint32_t scale = 1;
  double value = 0.0;
};

// scale         ticks per second of the run, at least 1; each row has it too
// step          ticks from one keyframe of a range to the next, at least 1
// width, height the layer's size in pixels
// rows          in the order in which the run wrote them
struct KeyframeTable {
  uint32_t scale = 1;
  uint32_t step = 1;
  int32_t width = 0;
  int32_t height = 0;
  double sourcePixelAspect = 1.0;
  double compPixelAspect = 1.0;
  std::vector<KeyframeRow> rows = {};
};

double TimeInSeconds(const KeyframeRow& row);

// The rows of one range, in the order of the table.
std::vector<KeyframeRow> RowsOfRange(const KeyframeTable& table, int range);
