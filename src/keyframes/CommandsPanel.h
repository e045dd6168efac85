// The Commands row of the effect's panel: the Apply button, pressed and released.
#pragma once

#include "AE_Effect.h"
#include "AE_EffectUI.h"

// Takes an event of the row. A release inside the button starts a run within this very call; every
// event type but press and drag is left alone.
//
// Returns 0, or why there was no record to keep the row's state in; the user is told then.
PF_Err HandleCommandsEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                           PF_EventExtra* extra);
