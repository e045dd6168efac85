// Which entry of a colour map's ramp belongs to a place: along a height, across the graph's bands.
#pragma once

#include <algorithm>
#include <cstdint>

#include "gradient/GradientRecord.h"
#include "platform/Truncate.h"

// The ramp entry nearest to `position`: itself from 0 to 200, beyond that the end. A stop's stored
// byte may be 201 to 254, and no sum with it may reach outside the ramp.
constexpr int32_t HoldToRamp(int32_t position) {
  return std::clamp(position, 0, GradientPositionEnd);
}

// The entry for a place along a height, from 200 at `height` 0.0, the top, to 0 at 1.0.
// Outside of that it stays at the end; a NaN gives 0.
inline int32_t RampIndexAlongHeight(float height) {
  return HoldToRamp(Truncate<int32_t>((1.0F - height) * 200.0F + 0.5F));
}

// The entry for one of the graph's bands, 0 to 31: 0, 6, 13, 19 and so on up to 194. Any other
// number stays at an end.
inline int32_t RampIndexAcrossBands(int32_t band) {
  return HoldToRamp(Truncate<int32_t>(200.0F * static_cast<float>(band) * 0.03125F + 0.5F));
}
