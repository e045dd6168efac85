// The two millisecond counts of the system.
#include "platform/TickCount.h"

#include <windows.h>
// In a block of its own: it needs what stands above.
#include <timeapi.h>

uint32_t TickCountMilliseconds() {
  return GetTickCount();
}

uint32_t ClockMilliseconds() {
  return timeGetTime();
}
