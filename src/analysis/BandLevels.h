// How loud each of the 32 bands is around a moment of the audio layer.
#pragma once

#include <cstdint>
#include <span>

#include "AE_Effect.h"
#include "analysis/BandTable.h"

// Works out the band levels of a window of 150 ms and a tick with `time` at its middle.
//
// time, timeScale   layer time, in ticks and ticks per second
// levels            in: a mask, 0.0 leaves a band out. Out: 0.0 for the bands left out, for the
//                   others 0.0 to 1.0 (a negative gain, which no slider allows, gives negative
//                   levels; a level that is not a number becomes 1.0)
//
// Returns what the host's check-out or fetch returned; all 32 levels are 0.0 after an error. No
// layer chosen, a layer without sound and a window without a frame are silence, not errors.
// Depends on nothing but the sound, the parameters kChannel to kTreble, the time and the scale.
PF_Err ComputeBandLevels(const PF_InData* in_data, const PF_ParamDef* const* params, int32_t time,
                         uint32_t timeScale, std::span<double, kBandCount> levels);
