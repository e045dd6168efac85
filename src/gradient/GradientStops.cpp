// Clearing, adding, mirroring, colouring and resetting the stops of a colour map.
#include "gradient/GradientStops.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "gradient/GradientRamp.h"
#include "gradient/GradientRecord.h"
#include "gradient/GradientView.h"
#include "gradient/RampIndex.h"
#include "gradient/RuntimeRandom.h"
#include "platform/TickCount.h"

namespace {

struct ColorStop {
  int32_t position;
  float red;
  float green;
  float blue;
};

constexpr ColorStop kDefaultStops[] = {
    {0, 1.0F, 0.0F, 0.0F},   {50, 1.0F, 1.0F, 0.0F},  {100, 0.0F, 1.0F, 0.0F},
    {150, 0.0F, 1.0F, 1.0F}, {200, 0.0F, 0.0F, 1.0F},
};

// Moves the entries from `slot` up one place towards the end; the last entry is dropped.
template <typename Entry>
void OpenSlot(Entry* entries, int32_t slot) {
  Entry* const end = entries + GradientStopLimit;
  std::move_backward(entries + slot, end - 1, end);
}

// The opposite: the entry at `slot` is dropped, and the last one stands twice then.
template <typename Entry>
void CloseSlot(Entry* entries, int32_t slot) {
  std::move(entries + slot + 1, entries + GradientStopLimit, entries + slot);
}

bool HoldsStop(const GradientView& view, int32_t slot) {
  return slot >= 0 && slot < CountStops(view);
}

void SwapStops(GradientView& view, int32_t a, int32_t b) {
  std::swap(view.stopPosition[a], view.stopPosition[b]);
  std::swap(view.stopRed[a], view.stopRed[b]);
  std::swap(view.stopGreen[a], view.stopGreen[b]);
  std::swap(view.stopBlue[a], view.stopBlue[b]);
}

// Exchanges two stops of the table and mirrors both; with one stop as `low` and `high` it mirrors
// that one.
void MirrorPair(GradientView& view, int32_t low, int32_t high) {
  const int32_t lowPosition = HoldToRamp(view.stopPosition[low]);
  const int32_t highPosition = HoldToRamp(view.stopPosition[high]);
  SwapStops(view, low, high);
  view.stopPosition[low] = static_cast<uint8_t>(GradientPositionEnd - highPosition);
  view.stopPosition[high] = static_cast<uint8_t>(GradientPositionEnd - lowPosition);
}

float RandomComponent(RuntimeRandom& random) {
  return static_cast<float>((random.Draw() % 100U) / 100.0);
}

}  // namespace

void ClearStops(GradientView& view) {
  std::fill_n(view.stopPosition, GradientStopLimit, GradientNoStop);
  std::fill_n(view.stopRed, GradientStopLimit, 0.0F);
  std::fill_n(view.stopGreen, GradientStopLimit, 0.0F);
  std::fill_n(view.stopBlue, GradientStopLimit, 0.0F);
}

int32_t InsertStop(GradientView& view, int32_t position, float red, float green, float blue) {
  const int32_t stopCount = CountStops(view);
  if (stopCount == GradientStopLimit) return GradientNoStop;
  const auto newPosition = static_cast<uint8_t>(HoldToRamp(position));
  int32_t slot = 0;
  while (slot < stopCount && view.stopPosition[slot] <= newPosition) ++slot;
  if (slot < stopCount) {
    OpenSlot(view.stopPosition, slot);
    OpenSlot(view.stopRed, slot);
    OpenSlot(view.stopGreen, slot);
    OpenSlot(view.stopBlue, slot);
  }
  view.stopPosition[slot] = newPosition;
  view.stopRed[slot] = red;
  view.stopGreen[slot] = green;
  view.stopBlue[slot] = blue;
  return slot;
}

int32_t MoveStop(GradientView& view, int32_t slot, int32_t position) {
  if (!HoldsStop(view, slot)) return slot;
  const int32_t stopCount = CountStops(view);
  const auto newPosition = static_cast<uint8_t>(HoldToRamp(position));
  if (newPosition > view.stopPosition[slot]) {
    for (; slot + 1 < stopCount && newPosition >= view.stopPosition[slot + 1]; ++slot) {
      SwapStops(view, slot, slot + 1);
    }
  } else {
    for (; slot > 0 && newPosition < view.stopPosition[slot - 1]; --slot) {
      SwapStops(view, slot, slot - 1);
    }
  }
  view.stopPosition[slot] = newPosition;
  return slot;
}

void RemoveStop(GradientView& view, int32_t slot) {
  if (!HoldsStop(view, slot)) return;
  CloseSlot(view.stopPosition, slot);
  CloseSlot(view.stopRed, slot);
  CloseSlot(view.stopGreen, slot);
  CloseSlot(view.stopBlue, slot);
  view.stopPosition[GradientStopLimit - 1] = GradientNoStop;
}

void SetStopColor(GradientView& view, int32_t slot, float red, float green, float blue) {
  if (!HoldsStop(view, slot)) return;
  view.stopRed[slot] = red;
  view.stopGreen[slot] = green;
  view.stopBlue[slot] = blue;
}

void FlipStops(GradientView& view) {
  const int32_t stopCount = CountStops(view);
  if (stopCount < 2) return;
  for (int32_t low = 0, high = stopCount - 1; low <= high; ++low, --high) {
    MirrorPair(view, low, high);
  }
  RebuildRamp(view);
}

void RandomizeStops(GradientView& view) {
  RandomizeStops(view, TickCountMilliseconds());
}

void RandomizeStops(GradientView& view, uint32_t seed) {
  RuntimeRandom random(seed);
  const int32_t stopCount = CountStops(view);
  for (int32_t i = 0; i < stopCount; ++i) {
    view.stopRed[i] = RandomComponent(random);
    view.stopGreen[i] = RandomComponent(random);
    view.stopBlue[i] = RandomComponent(random);
  }
  RebuildRamp(view);
}

void ResetStops(GradientView& view) {
  ClearStops(view);
  for (const ColorStop& stop : kDefaultStops) {
    InsertStop(view, stop.position, stop.red, stop.green, stop.blue);
  }
  RebuildRamp(view);
}

void InitRecord(GradientRecord& record) {
  GradientView view(record);
  ResetStops(view);
}
