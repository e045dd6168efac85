// The fall of the hold marks.
#include "graph/FalloffMemory.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr double kLeftAfterFalloffTime = 0.05;

// In 32 bits that wrap around at the ends, as the host counts its ticks.
bool Follows(const FrameTime& time, int32_t lastRenderTime) {
  return static_cast<uint32_t>(time.currentTime) ==
         static_cast<uint32_t>(lastRenderTime) + static_cast<uint32_t>(time.timeStep);
}

// What is left of a held value one frame later. Where nothing falls it is the raw value itself.
double Fallen(double held, double raw, const RangeFalloff& range, const FrameTime& time,
              PowerFunction pow) {
  const double decayStep = time.timeStep / (time.timeScale * range.falloffTime);
  const double decayFactor = pow(kLeftAfterFalloffTime, decayStep);
  if (range.falloff == kFalloffLinear) return held - decayStep;
  if (range.falloff == kFalloffExponential) return decayFactor * held;
  return raw;
}

}  // namespace

FalloffMemory ReadFalloffMemory(const SequenceRecord& record) {
  return {record.lastRenderTime, {record.heldValue[0], record.heldValue[1], record.heldValue[2]}};
}

void StoreFalloffMemory(const FalloffMemory& memory, SequenceRecord& record) {
  record.lastRenderTime = memory.lastRenderTime;
  std::ranges::copy(memory.heldValue, record.heldValue);
}

FalloffMemory AdvanceFalloffMemory(const FalloffMemory& memory,
                                   std::span<const double, kRangeCount> raw,
                                   std::span<const RangeFalloff, kRangeCount> falloffs,
                                   const FrameTime& time, PowerFunction pow) {
  FalloffMemory next{time.currentTime, {}};
  const bool isConsecutive = Follows(time, memory.lastRenderTime);
  for (size_t range = 0; range < raw.size(); ++range) {
    double value = raw[range];
    if (isConsecutive) {
      const double fallen = Fallen(memory.heldValue[range], value, falloffs[range], time, pow);
      if (fallen > value) value = fallen;
    }
    // In this order what is not a number becomes 0.0.
    next.heldValue[range] = std::max(0.0, value);
  }
  return next;
}
