// Greys parameters in and out by what the user has chosen.
#pragma once

#include "AE_Effect.h"

// Brings the enabled state of every dependent parameter, and that of the Apply button in the
// sequence record, in line with `params`.
//
// Returns 0 or the first error of the host, whose text then stands in the return message; rows
// before the refused one have been updated.
PF_Err UpdateParamsUI(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params);
