// The ramp of a colour map, worked out one colour component at a time.
#include "gradient/GradientRamp.h"

#include <algorithm>
#include <cstdint>

#include "gradient/GradientRecord.h"
#include "gradient/GradientView.h"
#include "gradient/RampIndex.h"

namespace {

// One component: `stopComponent` holds it for each of the stops, `ramp` receives 201 entries.
void RebuildComponent(const uint8_t* stopPosition, int32_t stopCount, const float* stopComponent,
                      float* ramp) {
  float* const rampEnd = ramp + GradientRampSize;
  if (stopCount == 0) {
    std::fill(ramp, rampEnd, 0.0F);
    return;
  }
  float component = stopComponent[0];
  int32_t next = HoldToRamp(stopPosition[0]) + 1;
  std::fill_n(ramp, next, component);
  for (int32_t i = 1; i < stopCount; ++i) {
    const int32_t position = HoldToRamp(stopPosition[i]);
    if (position > next) {
      // The sum is carried from entry to entry: its rounding is in every stored ramp.
      const float step = (stopComponent[i] - component) / static_cast<float>(position - next);
      for (; next <= position; ++next) {
        ramp[next] = component;
        component += step;
      }
    }
    component = stopComponent[i];
  }
  std::fill(ramp + next, rampEnd, component);
}

}  // namespace

void RebuildRamp(GradientView& view) {
  const int32_t stopCount = CountStops(view);
  RebuildComponent(view.stopPosition, stopCount, view.stopRed, view.colorMapRed);
  RebuildComponent(view.stopPosition, stopCount, view.stopGreen, view.colorMapGreen);
  RebuildComponent(view.stopPosition, stopCount, view.stopBlue, view.colorMapBlue);
}
