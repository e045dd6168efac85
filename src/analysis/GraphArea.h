// Where the graph lies in a frame, and how its columns and rows stand for bands and levels.
#pragma once

#include <cstdint>

// Pixels of the frame, row 0 at the top.
//
//          left              right
//     top   +------------------+   level 1.0
//           |  32 columns of   |
//           |  bandWidth       |
//   bottom  +------------------+   level 0.0
struct GraphArea {
  int32_t left = 0;
  int32_t right = 0;
  int32_t top = 0;
  int32_t bottom = 0;
  double bandWidth = 0.0;   // not rounded; 0.0 in a frame too narrow for a graph
  double levelScale = 1.0;  // levels per row, 1.0 when the graph has no height
};

// The graph's place in a frame of width x height pixels. Any size is taken, 0 and negative too.
GraphArea ComputeGraphArea(int32_t width, int32_t height);
