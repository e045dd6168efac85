// Waiting, by the system.
#include "platform/Sleep.h"

#include <windows.h>

void SleepMilliseconds(int32_t milliseconds) {
  if (milliseconds > 0) Sleep(static_cast<DWORD>(milliseconds));
}
