// One event of the host in the one panel that serves every instance of the effect.
#pragma once

#include "AE_Effect.h"
#include "AE_EffectUI.h"

// Lends the panel the instance's colour map and the host's call, delivers the event, and takes both
// back. What the tree throws ends the event and goes no further.
//
// Returns 0; the host's error where it doesn't have its colours, with the event delivered all the
// same; or the error of a record that can't be reached, which the user is told, and then nothing
// is delivered. Without a panel, and for an event that comes while another is being delivered,
// nothing happens.
PF_Err DispatchPanelEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                          PF_LayerDef* output, PF_EventExtra* extra);
