// The events of the colour map's row.
#pragma once

#include "AE_Effect.h"
#include "AE_EffectUI.h"

// Takes an event of the row's control in the effect's own window. Any other, such as a click in the
// row's title, is left alone and gives 0. For the errors see DispatchPanelEvent.
PF_Err HandleColorMapEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                           PF_LayerDef* output, PF_EventExtra* extra);
