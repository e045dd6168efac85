// A window of sound as the host lends it.
#pragma once

#include <cstdint>

struct StereoFrames {
  // 2 x count signed samples, left before right, 44100 frames a second. Borrowed from the host
  // while the audio is checked out; null when count is 0.
  const int16_t* samples = nullptr;
  int32_t count = 0;  // frames, never negative
};
