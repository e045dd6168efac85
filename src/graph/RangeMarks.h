// The marks of the three ranges: their rectangles, and their numbers below them.
#pragma once

#include "analysis/RangeGeometry.h"
#include "graph/GraphLayout.h"
#include "graph/GraphSettings.h"
#include "graph/OutputWorld.h"

// Draws the active ranges in turn: an outline where `selectionRanges` is on, a digit where `output`
// is. A range whose bands don't exist is left out.
void DrawRangeMarks(const OutputWorld& world, const GraphLayout& layout,
                    const GraphSettings& settings, const RangeGeometry& geometry);
