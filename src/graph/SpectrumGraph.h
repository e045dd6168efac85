// The part of a frame that shows the sound and the ranges: all but the output bars.
#pragma once

#include <span>

#include "analysis/BandTable.h"
#include "analysis/RangeGeometry.h"
#include "gradient/GradientRecord.h"
#include "graph/GraphLayout.h"
#include "graph/GraphSettings.h"
#include "graph/OutputWorld.h"

// Draws bars, captions, grid and range marks in this order, as far as they are switched on. A later
// one draws over the earlier ones.
//
// layout   of a frame of the world's size
// levels   of the 32 bands, held to 0.0 .. 1.0; NaN counts as 0.0
void DrawSpectrumGraph(const OutputWorld& world, const GraphLayout& layout,
                       const GraphSettings& settings, const GradientRecord& colorMap,
                       std::span<const double, kBandCount> levels, const RangeGeometry& geometry);
