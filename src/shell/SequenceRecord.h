// What the project stores of one instance of the effect: 3112 bytes, little-endian, no pointers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "gradient/GradientRecord.h"

// How the Apply button stands.
enum ApplyButtonState : uint32_t {
  kApplyButtonNormal = 0,
  kApplyButtonPressed = 1,
  kApplyButtonDisabled = 2,
};

// The flat form in a project and the form in memory are the same bytes, and their number is the
// only check that stored data gets: any field may hold anything.
struct SequenceRecord {
  int32_t lastRenderTime = 0;  // current_time of the last frame rendered, in ticks of its call
  uint8_t alignment[4] = {};   // never written, never read
  double heldValue[3] = {};  // per range, the held output drawn after the last render, 0.0 or above
  uint32_t applyButtonState = 0;  // an ApplyButtonState
  uint32_t applySecondState = 0;  // follows applyButtonState; nothing shows it
  uint32_t applyReserved = 0;     // 2, but 0 while an Apply runs; nothing reads it
  uint32_t applyTracking = 0;     // 1 while a press that began on the button is tracked
  GradientRecord gradient;        // the colour map, which is stored nowhere else
};

constexpr size_t kSequenceHeaderSize = 48;

static_assert(sizeof(SequenceRecord) == 3112);
static_assert(std::is_trivially_copyable_v<SequenceRecord>);
static_assert(offsetof(SequenceRecord, lastRenderTime) == 0);
static_assert(offsetof(SequenceRecord, heldValue) == 8);
static_assert(offsetof(SequenceRecord, applyButtonState) == 32);
static_assert(offsetof(SequenceRecord, applySecondState) == 36);
static_assert(offsetof(SequenceRecord, applyReserved) == 40);
static_assert(offsetof(SequenceRecord, applyTracking) == 44);
static_assert(offsetof(SequenceRecord, gradient) == kSequenceHeaderSize);
