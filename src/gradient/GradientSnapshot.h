// The stops of a colour map without its ramp: what undo, redo and the clipboard keep.
#pragma once

#include <cstdint>

#include "gradient/GradientRecord.h"
#include "gradient/GradientView.h"

// All 50 slots of the four stop arrays, used or free. It lives in memory only.
struct GradientSnapshot {
  uint8_t stopPosition[GradientStopLimit] = {};
  float stopRed[GradientStopLimit] = {};
  float stopGreen[GradientStopLimit] = {};
  float stopBlue[GradientStopLimit] = {};
};

GradientSnapshot TakeSnapshot(const GradientView& view);

// Makes the view's stops those of `snapshot`, byte for byte. The ramp is left for the caller to
// rebuild.
void PutSnapshotBack(const GradientSnapshot& snapshot, GradientView& view);
