// What went wrong during a run without ending it, for one message at its end.
#pragma once

#include <cstdint>

#include "AE_Effect.h"

class RunReport {
 public:
  // Notes the result of a call of the host's; 0 is none to note.
  //
  // what   the call's purpose, as the end of "the host refused ..."; borrowed for good
  void Note(const char* what, PF_Err hostError);

  // The first error noted, or 0.
  PF_Err FirstError() const { return firstError; }

  // Tells the user, if there is anything to tell.
  void Show(PF_OutData* out_data) const;

 private:
  const char* firstPurpose = nullptr;
  PF_Err firstError = PF_Err_NONE;
  int64_t failures = 0;
};
