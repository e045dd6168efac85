// What the library owns as a whole while it is loaded: the colour map's copy slot and its undo.
#pragma once

#include <cstdint>
#include <type_traits>

#include "gradient/GradientSnapshot.h"

// Lies in the host's global handle, whose memory moves, so it is plain data: nothing in it points
// into itself, and the two snapshots are freed by hand at the end.
struct GlobalRecord {
  GradientSnapshot clipboard;
  int32_t clipboardFilled = 0;               // non-zero once clipboard holds a snapshot
  GradientSnapshot* undoSnapshot = nullptr;  // owned
  GradientSnapshot* redoSnapshot = nullptr;  // owned
  int32_t undoOwner = -1;                    // index of the parameter that owns the undo slots
};

static_assert(std::is_trivially_copyable_v<GlobalRecord>);
