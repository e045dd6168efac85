// The colour map as a project stores it: the finished ramp, then the stops that it is made from.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

constexpr int32_t GradientStopLimit = 50;
constexpr int32_t GradientRampSize = 201;
constexpr int32_t GradientPositionEnd = 200;  // the right end of the map, and the last ramp entry
constexpr uint8_t GradientNoStop = 255;       // the stopPosition of a free slot; ends the list

// A stored format: its offsets and its size are fixed, and its bytes are the same in a project and
// in memory.
//
// Colour components run from 0.0, black, to 1.0, full; nothing holds them to that. The stops lie
// in the leading slots by rising position, entry i of the four stop arrays being stop i. Nothing
// checks a record that is loaded: whoever reads it takes every byte as possible.
struct GradientRecord {
  float colorMapRed[GradientRampSize] = {};
  float colorMapGreen[GradientRampSize] = {};
  float colorMapBlue[GradientRampSize] = {};
  uint8_t stopPosition[GradientStopLimit] = {};  // 0..200, or GradientNoStop
  // Two bytes of alignment lie here. Nothing writes or reads them.
  float stopRed[GradientStopLimit] = {};
  float stopGreen[GradientStopLimit] = {};
  float stopBlue[GradientStopLimit] = {};
};

static_assert(std::endian::native == std::endian::little);
static_assert(std::is_trivially_copyable_v<GradientRecord>);
static_assert(std::is_standard_layout_v<GradientRecord>);
static_assert(sizeof(GradientRecord) == 3064);
static_assert(offsetof(GradientRecord, colorMapRed) == 0);
static_assert(offsetof(GradientRecord, colorMapGreen) == 804);
static_assert(offsetof(GradientRecord, colorMapBlue) == 1608);
static_assert(offsetof(GradientRecord, stopPosition) == 2412);
static_assert(offsetof(GradientRecord, stopRed) == 2464);
static_assert(offsetof(GradientRecord, stopGreen) == 2664);
static_assert(offsetof(GradientRecord, stopBlue) == 2864);
