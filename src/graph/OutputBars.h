// The three bars on the right: each range's value, and the mark where it is held.
#pragma once

#include <array>
#include <span>

#include "graph/GraphLayout.h"
#include "graph/OutputWorld.h"
#include "shell/ParameterTable.h"

// Draws the bars of the active ranges, each with its track, hold mark and digit.
//
// raw, held   1.0 is the graph's height; any other number is drawn as far as the frame goes
void DrawOutputBars(const OutputWorld& world, const GraphLayout& layout,
                    const std::array<bool, kRangeCount>& active,
                    std::span<const double, kRangeCount> raw,
                    std::span<const double, kRangeCount> held);
