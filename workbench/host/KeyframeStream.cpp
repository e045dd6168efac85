// Merges keyframes by time.
#include "workbench/host/KeyframeStream.h"

#include <algorithm>
#include <iterator>

bool IsEarlier(const A_Time& a, const A_Time& b) {
  return int64_t{a.value} * b.scale < int64_t{b.value} * a.scale;
}

void KeyframeStream::Set(std::vector<Keyframe> added) {
  const auto earlier = [](const Keyframe& a, const Keyframe& b) {
    return IsEarlier(a.time, b.time);
  };
  std::stable_sort(added.begin(), added.end(), earlier);
  std::vector<Keyframe> merged;
  merged.reserve(keyframes.size() + added.size());
  // Of equal times a merge takes the old ones first, so the last of a run of equals is the newest.
  std::merge(keyframes.begin(), keyframes.end(), added.begin(), added.end(),
             std::back_inserter(merged), earlier);
  keyframes.clear();
  for (const Keyframe& keyframe : merged) {
    if (!keyframes.empty() && !IsEarlier(keyframes.back().time, keyframe.time)) {
      keyframes.back() = keyframe;
    } else {
      keyframes.push_back(keyframe);
    }
  }
}
