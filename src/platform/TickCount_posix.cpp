// Both counts from the steady clock.
#include "platform/TickCount.h"

#include <chrono>

uint32_t TickCountMilliseconds() {
  using std::chrono::milliseconds;
  const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<uint32_t>(std::chrono::duration_cast<milliseconds>(sinceStart).count());
}

uint32_t ClockMilliseconds() {
  return TickCountMilliseconds();
}
