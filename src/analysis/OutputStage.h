// From a range's raw value to what its keyframe gets: falloff, then the output scale.
#pragma once

#include <cstdint>

#include "AE_Effect.h"

// What 0.0 and 1.0 of a shaped value become. outMin may lie above outMax: the output is inverted.
struct OutputScale {
  double outMin = 0.0;
  double outMax = 100.0;
};

// The falloff of one range over one run of keyframes.
struct FalloffState {
  int32_t falloff = 1;             // a FalloffChoice
  double falloffTime = 0.0;        // seconds
  double linearDrop = 0.0;         // fall per keyframe; infinite when falloffTime is 0
  double exponentialFactor = 0.0;  // factor per keyframe: 5 % is left after falloffTime
  double previous = 0.0;           // the last keyframe's shaped value
};

// The scale that the range's Output Min/Max asks for. range: 0, 1 or 2. A choice that the popup
// doesn't have counts as its first, 0 to 100.
OutputScale ResolveOutputScale(const PF_ParamDef* const* params, int32_t range);

// The state at the start of a run.
//
// range            0, 1 or 2
// ticksPerSecond   base scale S of the run
// step             ticks from keyframe to keyframe
FalloffState MakeFalloffState(const PF_InData* in_data, const PF_ParamDef* const* params,
                              int32_t range, uint32_t ticksPerSecond, uint32_t step);

// Takes in the raw value of the next keyframe and returns its shaped value, which isn't negative;
// None (integrate) has no upper limit. To be called for every keyframe, for inactive ranges too.
double FalloffStep(FalloffState& state, double raw);

// The value that is written on the slider. It isn't held to the scale's ends.
double KeyframeValue(const OutputScale& scale, double shaped);
