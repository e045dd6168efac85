// A text that the host shows to the user after the call.
#pragma once

#include "AE_Effect.h"

// Puts `text` into out_data's return message, cut to what fits, and asks the host to show it.
void ShowReturnMessage(PF_OutData* out_data, const char* text);
