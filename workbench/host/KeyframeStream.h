// The keyframes of one parameter, in order of time.
#pragma once

#include <cstdint>
#include <vector>

#include "A.h"

struct Keyframe {
  A_Time time{};  // layer time, scale not 0
  double value = 0.0;
};

// Whether a stands before b, exactly, whatever their scales.
bool IsEarlier(const A_Time& a, const A_Time& b);

class KeyframeStream {
 public:
  // Sets keyframes, each in the place of one that stands at the very same time.
  void Set(std::vector<Keyframe> added);

  const std::vector<Keyframe>& Keyframes() const { return keyframes; }

 private:
  std::vector<Keyframe> keyframes;
};
