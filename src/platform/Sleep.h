// Waiting on the calling thread.
#pragma once

#include <cstdint>

// Returns after that many milliseconds at least; at once for 0 and below.
void SleepMilliseconds(int32_t milliseconds);
