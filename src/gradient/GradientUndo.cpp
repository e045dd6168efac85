// One step of undo and one of redo for the stops of a colour map.
#include "gradient/GradientUndo.h"

#include <new>
#include <utility>

namespace {

void Drop(GradientSnapshot*& snapshot) {
  delete std::exchange(snapshot, nullptr);
}

// The snapshot changes sides with the stops, so that the step needs no memory and can't fail.
void Exchange(GradientSnapshot*& kept, GradientSnapshot*& opposite, GradientView& view) {
  if (kept == nullptr) return;
  const GradientSnapshot present = TakeSnapshot(view);
  PutSnapshotBack(*kept, view);
  *kept = present;
  Drop(opposite);
  opposite = std::exchange(kept, nullptr);
}

}  // namespace

void PushUndo(const GradientUndoSlots& slots, const GradientView& view, int32_t owner) {
  if (slots.owner != owner) {
    DropSnapshots(slots);
    slots.owner = owner;
  }
  Drop(slots.redo);
  if (slots.undo == nullptr) slots.undo = new (std::nothrow) GradientSnapshot;
  if (slots.undo != nullptr) *slots.undo = TakeSnapshot(view);
}

void UndoStops(const GradientUndoSlots& slots, GradientView& view) {
  Exchange(slots.undo, slots.redo, view);
}

void RedoStops(const GradientUndoSlots& slots, GradientView& view) {
  Exchange(slots.redo, slots.undo, view);
}

bool CanUndo(const GradientUndoSlots& slots, int32_t owner) {
  return slots.owner == owner && slots.undo != nullptr;
}

bool CanRedo(const GradientUndoSlots& slots, int32_t owner) {
  return slots.owner == owner && slots.redo != nullptr;
}

void DropSnapshots(const GradientUndoSlots& slots) {
  Drop(slots.undo);
  Drop(slots.redo);
}
