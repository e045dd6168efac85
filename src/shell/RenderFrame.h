// The frame that the host asks for.
#pragma once

#include "AE_Effect.h"

// Renders the graph into `output`. Refuses a call without parameters or output; for the other
// errors see RenderSpectrumFrame.
PF_Err RenderFrame(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                   PF_LayerDef* output);
