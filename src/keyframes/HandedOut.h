// What a call that was to hand something out comes to.
#pragma once

#include "AE_Effect.h"

// `reference` is null unless the call succeeded. A host that reports success and hands out nothing
// has failed too, with PF_Err_BAD_CALLBACK_PARAM; else the host's error is returned.
template <typename Reference>
PF_Err HandedOut(PF_Err hostError, Reference*& reference) {
  if (hostError != PF_Err_NONE) reference = nullptr;
  if (hostError != PF_Err_NONE || reference != nullptr) return hostError;
  return PF_Err_BAD_CALLBACK_PARAM;
}

// Likewise for a time, which is none with a scale of 0.
inline PF_Err HandedOut(PF_Err hostError, const A_Time& time) {
  if (hostError != PF_Err_NONE || time.scale != 0) return hostError;
  return PF_Err_BAD_CALLBACK_PARAM;
}
