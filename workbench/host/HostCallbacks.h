// The callback tables that go into each PF_InData. The callbacks find their host in CommandScope.
#pragma once

#include "AE_Effect.h"

// Parameters, custom UI, audio.
PF_InteractCallbacks InteractCallbacks();

// Handles, filling of worlds, mathematics, platform data. The table lives as long as the program.
PF_UtilCallbacks* UtilityCallbacks();

// What stands in a slot that this host doesn't offer: reports the call and fails.
PF_Err UnofferedCallback();
