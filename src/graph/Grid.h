// The grid: lines that stand closer together toward the top, and the graph's two sides.
#pragma once

#include "graph/GraphLayout.h"
#include "graph/OutputWorld.h"

// Marks the lines in blue; red and green of what they cross stay.
void DrawGrid(const OutputWorld& world, const GraphLayout& layout);
