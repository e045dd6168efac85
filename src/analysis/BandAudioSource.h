// The audio layer's sound for one window, checked out of the host for as long as the object lives.
#pragma once

#include <cstdint>

#include "AE_Effect.h"
#include "analysis/StereoFrames.h"

// A span of the layer's own time.
struct AudioWindow {
  int32_t start = 0;       // ticks, may be negative
  int32_t duration = 0;    // ticks
  uint32_t timeScale = 0;  // ticks per second
};

// Checks the sound out when it is made and in when it goes, on whatever way its scope is left.
// A check-out that failed, or that found no sound, is not checked in.
class BandAudioSource {
 public:
  BandAudioSource(const PF_InData* in_data, const AudioWindow& window);
  ~BandAudioSource();
  BandAudioSource(const BandAudioSource&) = delete;
  BandAudioSource& operator=(const BandAudioSource&) = delete;
  BandAudioSource(BandAudioSource&&) = delete;
  BandAudioSource& operator=(BandAudioSource&&) = delete;

  // Gives the window's frames, borrowed until this object goes.
  //
  // Returns the error of the check-out, else that of the fetch. `frames` is empty after an error,
  // with no layer chosen, with a layer that has no sound, and when the host reports success with
  // no data or without a frame.
  PF_Err Fetch(StereoFrames& frames) const;

 private:
  const PF_InData* hostData;
  PF_LayerAudio audio = nullptr;
  PF_Err checkoutError = PF_Err_NONE;
};
