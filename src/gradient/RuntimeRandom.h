// The random numbers of the C runtime, drawn the same on every system.
#pragma once

#include <cstdint>

class RuntimeRandom {
 public:
  explicit RuntimeRandom(uint32_t seed) : state(seed) {}

  // The next number, 0 to 32767.
  uint32_t Draw() {
    state = state * 214013U + 2531011U;
    return (state >> 16U) & 0x7FFFU;
  }

 private:
  uint32_t state;
};
