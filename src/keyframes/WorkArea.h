// The stretch of time that a run covers.
#pragma once

#include "AE_Effect.h"
#include "host/SuiteHandler.h"

struct WorkArea {
  A_Time start{};
  A_Time end{};  // not included
};

// Finds the work area of the comp that holds the effect's layer, in the layer's own time.
//
// Returns 0 or the host's error, and then workArea means nothing.
PF_Err FindWorkArea(AEGP_SuiteHandler& suites, PF_ProgPtr effectRef, WorkArea* workArea);
