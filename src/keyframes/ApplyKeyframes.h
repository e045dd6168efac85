// The run behind the Apply button.
#pragma once

#include "AE_Effect.h"
#include "AE_EffectUI.h"

// Walks the comp's work area and writes one keyframe per step on the output slider of each active
// range. The settings are those of `params`, fixed for the whole run; it can't be interrupted.
//
// Returns 0 or the first error; the user has been told of it then. Where the host refuses to open
// something, the run ends with nothing written; a call that it refuses later costs one keyframe its
// sound or its place, and the run goes on. Throws the integer PF_Err_BAD_CALLBACK_PARAM where the
// host lacks a suite; what was open is closed then.
PF_Err ApplyKeyframes(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                      PF_EventExtra* extra);
