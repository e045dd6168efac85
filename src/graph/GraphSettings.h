// What the parameters ask of a frame, read once at its beginning.
#pragma once

#include <array>
#include <cstdint>

#include "AE_Effect.h"
#include "graph/FalloffMemory.h"
#include "shell/ParameterTable.h"

// Values as the host gives them; nothing holds them to their declared limits.
struct GraphSettings {
  int32_t gradient = kGradientHorizontal;  // any other value counts as vertical
  bool quantize = false;
  int32_t quantizeValue = 20;  // segments over the graph's height
  float fillSegment = 0.8F;    // share of a segment that its bar fills
  std::array<bool, kRangeCount> active{};
  std::array<RangeFalloff, kRangeCount> falloffs{};
  bool logarithmicScale = true;  // the switches of the group Graph Elements
  bool spectrum = true;
  bool selectionRanges = true;
  bool output = true;
  bool colormap = true;
};

GraphSettings ReadGraphSettings(const PF_ParamDef* const* params);
