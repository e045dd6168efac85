// Copies of the stops of a colour map, out of it and back in.
#include "gradient/GradientSnapshot.h"

#include <cstring>

#include "gradient/GradientView.h"

// memcpy, because a component that is a NaN must come back with all its bits.
GradientSnapshot TakeSnapshot(const GradientView& view) {
  GradientSnapshot snapshot;
  std::memcpy(snapshot.stopPosition, view.stopPosition, sizeof snapshot.stopPosition);
  std::memcpy(snapshot.stopRed, view.stopRed, sizeof snapshot.stopRed);
  std::memcpy(snapshot.stopGreen, view.stopGreen, sizeof snapshot.stopGreen);
  std::memcpy(snapshot.stopBlue, view.stopBlue, sizeof snapshot.stopBlue);
  return snapshot;
}

void PutSnapshotBack(const GradientSnapshot& snapshot, GradientView& view) {
  std::memcpy(view.stopPosition, snapshot.stopPosition, sizeof snapshot.stopPosition);
  std::memcpy(view.stopRed, snapshot.stopRed, sizeof snapshot.stopRed);
  std::memcpy(view.stopGreen, snapshot.stopGreen, sizeof snapshot.stopGreen);
  std::memcpy(view.stopBlue, snapshot.stopBlue, sizeof snapshot.stopBlue);
}
