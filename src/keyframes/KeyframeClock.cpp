// Ticks from a rate and a span.
#include "keyframes/KeyframeClock.h"

#include "platform/Truncate.h"

namespace {

int32_t TickAt(const A_Time& time, uint32_t ticksPerSecond) {
  return Truncate<int32_t>(static_cast<double>(time.value) / static_cast<double>(time.scale) *
                           static_cast<double>(ticksPerSecond));
}

}  // namespace

std::optional<KeyframeClock> MakeKeyframeClock(double rate, const A_Time& start,
                                               const A_Time& end) {
  KeyframeClock clock;
  clock.S = Truncate<uint32_t>(rate * 100.0);
  if (clock.S == 0) return std::nullopt;
  clock.step = Truncate<uint32_t>(static_cast<double>(clock.S) / rate);
  if (clock.step == 0) return std::nullopt;
  clock.startTick = TickAt(start, clock.S);
  clock.endTick = TickAt(end, clock.S);
  return clock;
}

int64_t KeyframeCount(const KeyframeClock& clock) {
  const int64_t ticks = static_cast<int64_t>(clock.endTick) - clock.startTick;
  return ticks > 0 ? (ticks + clock.step - 1) / clock.step : 0;
}
