// From parameter records to the settings of a frame.
#include "graph/GraphSettings.h"

#include <cstddef>

#include "shell/ParameterValue.h"

namespace {

// A percent as the product has it: 0.01 in single precision, widened. 1/100 gives other gaps.
constexpr double kPercent = 0.009999999776482582;

}  // namespace

GraphSettings ReadGraphSettings(const PF_ParamDef* const* params) {
  GraphSettings settings;
  settings.gradient = PopupChoice(params, kGradient);
  settings.quantize = IsChecked(params, kQuantize);
  settings.quantizeValue = params[kQuantizeValue]->u.sd.value;
  settings.fillSegment = static_cast<float>(FixedSliderValue(params, kFillSegment) * kPercent);
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const auto slot = static_cast<size_t>(range);
    settings.active[slot] = IsRangeActive(params, range);
    settings.falloffs[slot] = {PopupChoice(params, RangeParameter(range, kRangeFalloff)),
                               FixedSliderValue(params, RangeParameter(range, kRangeFalloffTime))};
  }
  settings.logarithmicScale = IsChecked(params, kLogarithmicScale);
  settings.spectrum = IsChecked(params, kShowSpectrum);
  settings.selectionRanges = IsChecked(params, kShowSelectionRanges);
  settings.output = IsChecked(params, kShowOutput);
  settings.colormap = IsChecked(params, kShowColormap);
  return settings;
}
