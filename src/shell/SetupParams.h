// Declares the effect's parameters to the host.
#pragma once

#include "AE_Effect.h"

// Adds the rows of the parameter table in order, registers the two rows that the effect draws
// itself, and sets the number of parameters. The first error of the host ends it and is returned;
// the number is not set then.
PF_Err SetupParams(PF_InData* in_data, PF_OutData* out_data);
