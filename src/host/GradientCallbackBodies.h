// What the colour map's panel reaches through its callbacks: the host, and the library's record.
#pragma once

#include <cstdint>

#include "gradient/GradientCallbacks.h"
#include "gradient/GradientView.h"
#include "host/PluginHost_API.h"
#include "shell/GlobalRecord.h"

// What the callbacks of one event work on; all borrowed for its length.
struct GradientCallbackContext {
  PluginHost_API* host = nullptr;
  GlobalRecord* global = nullptr;  // locked
  GradientView* view = nullptr;
  int32_t ownerIndex = -1;  // the panel's parameter
};

// A table whose functions work on `context`, which outlives it.
GradientCallbacks MakeGradientCallbacks(GradientCallbackContext& context);
