// The message at the end of a run.
#include "keyframes/RunReport.h"

#include <array>
#include <cinttypes>
#include <cstdio>

#include "host/ReturnMessage.h"

void RunReport::Note(const char* what, PF_Err hostError) {
  if (hostError == PF_Err_NONE) return;
  if (failures++ > 0) return;
  firstPurpose = what;
  firstError = hostError;
}

void RunReport::Show(PF_OutData* out_data) const {
  if (failures == 0) return;
  std::array<char, sizeof out_data->return_msg> text{};
  std::snprintf(text.data(), text.size(),
                "Delvior: Apply ran to its end, but the host refused %s (code %d, %" PRId64
                " refused calls in all). Check the keyframes, or press Apply again.",
                firstPurpose, static_cast<int>(firstError), failures);
  ShowReturnMessage(out_data, text.data());
}
