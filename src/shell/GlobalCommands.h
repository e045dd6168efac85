// What the library does once when it is taken into use, and once when it is let go.
#pragma once

#include "AE_Effect.h"

// Tells the host version and flags, and creates the global record and the panels.
//
// Returns PF_Interrupt_CANCEL with nothing done where the host is not one that the effect runs in;
// PF_Err_OUT_OF_MEMORY where there is no memory for the record.
PF_Err SetUpGlobal(PF_InData* in_data, PF_OutData* out_data);

// Frees the panels, what the global record owns, and the record.
PF_Err SetDownGlobal(PF_InData* in_data, PF_OutData* out_data);
