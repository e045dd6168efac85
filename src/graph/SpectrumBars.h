// The 32 bars of the spectrum, and the gaps that cut them into segments.
#pragma once

#include <span>

#include "analysis/BandTable.h"
#include "gradient/GradientRecord.h"
#include "graph/GraphLayout.h"
#include "graph/GraphSettings.h"
#include "graph/OutputWorld.h"

// Stores the bars' pixels, opaque, and where `quantize` is on zeros in the gaps, which reach over
// the whole graph and not only over bars.
//
// levels     held to 0.0 .. 1.0; NaN counts as 0.0
// colorMap   entries outside 0.0 .. 1.0 are held to it, NaN is 0.0
// A quantized bar can rise half a segment above the top of the graph; it keeps the map's last
// colour there.
void DrawSpectrumBars(const OutputWorld& world, const GraphLayout& layout,
                      const GraphSettings& settings, const GradientRecord& colorMap,
                      std::span<const double, kBandCount> levels);
