// The host's main window.
#pragma once

#include "AE_Effect.h"

// Asks the host for it until it has told it once.
void FetchMainWindow(const PF_InData* in_data);

// Null while it isn't known.
void* MainWindow();
