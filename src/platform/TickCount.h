// The system's millisecond tick count: a number that is different each time a user presses a key.
#pragma once

#include <cstdint>

// Milliseconds since some moment of the system's own; wraps around after 49.7 days.
uint32_t TickCountMilliseconds();
