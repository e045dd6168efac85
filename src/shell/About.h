// The About text.
#pragma once

#include "AE_Effect.h"

// Writes name, version and description into the return message, which the host shows.
PF_Err ShowAbout(PF_InData* in_data, PF_OutData* out_data);
