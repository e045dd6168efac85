// The time base of one run: which ticks get a keyframe.
#pragma once

#include <cstdint>
#include <optional>

#include "A.h"

struct KeyframeClock {
  uint32_t S = 0;         // ticks per second
  uint32_t step = 0;      // ticks from one keyframe to the next
  int32_t startTick = 0;  // the first keyframe
  int32_t endTick = 0;    // not included
};

// Fixes the clock of a run over the span from `start` to `end`, layer time.
//
// rate   keyframes per second. Ticks per second and step are truncated each by itself, so their
//        quotient is the rate only where the rate has two decimals at most.
// Gives nothing for a rate that leaves no tick or no step: below 0.01, or not a number.
std::optional<KeyframeClock> MakeKeyframeClock(double rate, const A_Time& start, const A_Time& end);

// How many keyframes the clock gives.
int64_t KeyframeCount(const KeyframeClock& clock);
