// The bands and the levels that the user's three ranges cover.
#pragma once

#include <array>
#include <cstdint>

#include "AE_Effect.h"
#include "analysis/BandTable.h"
#include "shell/ParameterTable.h"

// A run of bands, both ends included.
struct BandRun {
  int32_t firstBand = 0;
  int32_t lastBand = 0;
};

// A window of levels, 0.0 at the bottom of the graph and 1.0 at its top. Without height it is a
// threshold at lowerLevel.
struct LevelWindow {
  double lowerLevel = 0.0;
  double upperLevel = 0.0;
};

struct RangeGeometry {
  std::array<BandRun, kRangeCount> bands{};
  std::array<LevelWindow, kRangeCount> levels{};
};

// Whether the run names bands that exist, in ascending order. It doesn't in a frame too small to
// hold a graph, and such a range counts as inactive.
constexpr bool LiesInBank(const BandRun& run) {
  return 0 <= run.firstBand && run.firstBand <= run.lastBand && run.lastBand < kBandCount;
}

// Turns the corners of the three ranges into bands and levels.
//
// w, h   size in pixels of the frame that the corners stand in; any value
// A corner outside the graph is moved to its edge. On/Off Trigger has no window: its threshold is
// the height of Corner 1.
void ComputeRangeGeometry(const PF_ParamDef* const* params, int32_t w, int32_t h,
                          RangeGeometry& geometry);
