// The life of an instance's record: made, taken over from a project, flattened, given up.
#pragma once

#include "AE_Effect.h"

// Gives a new instance its record. All of these return 0, PF_Err_OUT_OF_MEMORY, or where a handle
// is too small for a record PF_Err_INTERNAL_STRUCT_DAMAGED. A failed call leaves the old record as
// it was and no handle that the host doesn't know of.
PF_Err SetUpSequence(PF_InData* in_data, PF_OutData* out_data);

// Takes over what a project stored. A record of the right size is used as it stands, whatever it
// holds. Any other size keeps as much of the header as there is, gets the default colour map, and
// tells the user; the instance works all the same.
PF_Err ResetUpSequence(PF_InData* in_data, PF_OutData* out_data);

// Puts the header back to that of a new record, for storing. The colour map stays.
PF_Err FlattenSequence(PF_InData* in_data, PF_OutData* out_data);

// Hands the host a copy of the record, header included; the record itself is not touched.
PF_Err CopyFlattenedSequence(PF_InData* in_data, PF_OutData* out_data);

PF_Err SetDownSequence(PF_InData* in_data, PF_OutData* out_data);
