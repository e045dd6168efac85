// Fills the return message.
#include "host/ReturnMessage.h"

#include <cstdio>

void ShowReturnMessage(PF_OutData* out_data, const char* text) {
  out_data->out_flags |= PF_OutFlag_DISPLAY_ERROR_MESSAGE;
  std::snprintf(out_data->return_msg, sizeof out_data->return_msg, "%s", text);
}
