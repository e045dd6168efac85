// The system's clock, and the one in use.
#include "toolkit/Clock.h"

#include "platform/Sleep.h"
#include "platform/TickCount.h"

namespace {

class SystemClock : public Clock {
 public:
  uint32_t Milliseconds() override { return ClockMilliseconds(); }
  void Sleep(int32_t milliseconds) override { SleepMilliseconds(milliseconds); }
};

Clock* clockInUse = nullptr;

}  // namespace

Clock& CurrentClock() {
  static SystemClock systemClock;
  return clockInUse != nullptr ? *clockInUse : systemClock;
}

void UseClock(Clock* clock) {
  clockInUse = clock;
}
