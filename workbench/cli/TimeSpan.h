// Seconds on the command line, and ticks of a comp.
#pragma once

#include <cstdint>
#include <string>

// Seconds; end is not before start.
struct TimeSpan {
  double start = 0.0;
  double end = 0.0;
};

// Reads START:END. Throws UsageFailure where that isn't two numbers, or where END comes first.
TimeSpan ParseTimeSpan(const std::string& text);

// round(seconds x scale). Throws UsageFailure where that is more than a comp can hold.
int32_t TicksAt(double seconds, uint32_t scale);
