// The system's millisecond counts. Both wrap around after 49.7 days.
#pragma once

#include <cstdint>

// Milliseconds since some moment of the system's own: a number that is different each time a user
// presses a key. May stand still for 16 of them.
uint32_t TickCountMilliseconds();

// What movement on the screen is timed by: the finer count, where a system has two.
uint32_t ClockMilliseconds();
