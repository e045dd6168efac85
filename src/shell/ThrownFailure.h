// What was thrown below the entry point, as the host understands it.
#pragma once

#include "AE_Effect.h"

// To be called inside a catch block. An integer is a PF_Err and is returned; a text goes to the
// return message, to be shown; anything else gets a general text. out_data may be null.
PF_Err ReportThrownFailure(PF_OutData* out_data) noexcept;
