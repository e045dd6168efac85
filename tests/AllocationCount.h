// How much the test program has allocated.
#pragma once

#include <cstdint>

// The number of blocks that were allocated since the program began, on all threads.
int64_t AllocationCount();
