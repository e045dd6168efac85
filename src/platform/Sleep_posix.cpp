// Waiting, by the standard library.
#include "platform/Sleep.h"

#include <chrono>
#include <thread>

void SleepMilliseconds(int32_t milliseconds) {
  if (milliseconds > 0) std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}
