// The pixels that a frame is drawn on, with a size that is safe to draw in.
#pragma once

#include <cstdint>

#include "AE_Effect.h"

struct OutputWorld {
  PF_Pixel* data = nullptr;  // the host's memory, row 0 at the top
  int64_t stride = 0;        // pixels from one row to the next
  int64_t width = 0;         // never more than stride
  int64_t height = 0;

  PF_Pixel* Row(int64_t row) const { return data + row * stride; }
};

// What of the host's world can be drawn on: nothing, a width and height of 0, where it has no data,
// a negative size, or rows longer than the distance between them.
OutputWorld MakeOutputWorld(const PF_LayerDef& output);
