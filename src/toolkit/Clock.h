// The time and the waiting of controls; tests bring a clock that they move by hand.
#pragma once

#include <cstdint>

class Clock {
 public:
  virtual ~Clock() = default;
  // Milliseconds since some moment; wraps round.
  virtual uint32_t Milliseconds() = 0;
  virtual void Sleep(int32_t milliseconds) = 0;
};

// The clock in use: the system's, until another is set.
Clock& CurrentClock();

// clock   outlives its use; null brings the system's back
void UseClock(Clock* clock);
