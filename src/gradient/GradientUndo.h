// One step of undo and one of redo for the stops of a colour map.
#pragma once

#include <cstdint>

#include "gradient/GradientSnapshot.h"
#include "gradient/GradientView.h"

// The two snapshots and their owner, wherever they are kept. A snapshot may be null; one that is
// set was made with new and is deleted here when it goes.
struct GradientUndoSlots {
  GradientSnapshot*& undo;
  GradientSnapshot*& redo;
  int32_t& owner;  // index of the parameter that the snapshots belong to
};

// Keeps the view's stops for undo in place of those kept before, and drops what redo has. Snapshots
// of another owner are dropped first. Where there is no memory, nothing is there to undo.
void PushUndo(const GradientUndoSlots& slots, const GradientView& view, int32_t owner);

// Exchange the view's stops for those kept; the old ones can be had back with the other of the two.
// Nothing happens without a snapshot. The ramp is left for the caller to rebuild.
void UndoStops(const GradientUndoSlots& slots, GradientView& view);
void RedoStops(const GradientUndoSlots& slots, GradientView& view);

bool CanUndo(const GradientUndoSlots& slots, int32_t owner);
bool CanRedo(const GradientUndoSlots& slots, int32_t owner);

// Deletes both snapshots.
void DropSnapshots(const GradientUndoSlots& slots);
