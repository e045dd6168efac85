// What the graph remembers from one frame to the next: where the hold marks stand.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "shell/ParameterTable.h"
#include "shell/SequenceRecord.h"

// The part of the stored record that a frame reads and writes. It may hold anything.
struct FalloffMemory {
  int32_t lastRenderTime = -1;                  // ticks
  std::array<double, kRangeCount> heldValue{};  // 0.0 or above, once a frame has written it
};

struct RangeFalloff {
  int32_t falloff = kFalloffInstant;  // a FalloffChoice
  double falloffTime = 0.0;           // seconds
};

// Where a frame stands, as the host tells it.
struct FrameTime {
  int32_t currentTime = 0;  // ticks of layer time
  int32_t timeStep = 0;     // ticks from frame to frame
  uint32_t timeScale = 0;   // ticks per second
};

using PowerFunction = double (*)(double base, double exponent);

FalloffMemory ReadFalloffMemory(const SequenceRecord& record);
void StoreFalloffMemory(const FalloffMemory& memory, SequenceRecord& record);

// The memory after a frame with the values `raw`.
//
// A held value that falls more slowly than its raw value stands above it, but only in the direct
// successor of the frame before; any other frame starts anew at its raw values.
// pow   the host's; what it throws passes through
// Every number is taken as the arithmetic of doubles has it: a falloff time of 0, a time scale of 0
// and NaN included. A raw value that is NaN is held as 0.0.
FalloffMemory AdvanceFalloffMemory(const FalloffMemory& memory,
                                   std::span<const double, kRangeCount> raw,
                                   std::span<const RangeFalloff, kRangeCount> falloffs,
                                   const FrameTime& time, PowerFunction pow);
