// What the effect may ask of a host, whichever host it is.
#pragma once

#include "AE_Effect.h"

class PluginHost_AE_Impl;

class PluginHost_API {
 public:
  virtual ~PluginHost_API() = default;

  // The facade in the host's own terms, for those who need the records of the call.
  virtual PluginHost_AE_Impl* GetAEImpl() = 0;

  // A colour of the host's own interface.
  //
  // index              0 frame, 1 shadow, 2 highlight, 3 text, 4 disabled text,
  //                    5 pressed button's text
  // red, green, blue   receive 0 to 255; untouched on failure
  //
  // Returns 1 for an index above 5, else 0 or the host's error.
  virtual PF_Err GetAppColor(A_u_long index, A_long* red, A_long* green, A_long* blue) = 0;
};
