// Falloff and output scale.
#include "analysis/OutputStage.h"

#include "AE_EffectCB.h"
#include "shell/ParameterTable.h"
#include "shell/ParameterValue.h"

OutputScale ResolveOutputScale(const PF_ParamDef* const* params, int32_t range) {
  switch (PopupChoice(params, RangeParameter(range, kRangeOutputMinMax))) {
    case kOutput0To1:
      return {0.0, 1.0};
    case kOutputMinus1To1:
      return {-1.0, 1.0};
    case kOutput0To360:
      return {0.0, 360.0};
    case kOutputMinus180To180:
      return {-180.0, 180.0};
    case kOutputCustom:
      return {FixedSliderValue(params, RangeParameter(range, kRangeMin)),
              FixedSliderValue(params, RangeParameter(range, kRangeMax))};
    default:
      return {0.0, 100.0};
  }
}

FalloffState MakeFalloffState(const PF_InData* in_data, const PF_ParamDef* const* params,
                              int32_t range, uint32_t ticksPerSecond, uint32_t step) {
  constexpr double kLeftAfterFalloffTime = 0.05;
  FalloffState state;
  state.falloff = PopupChoice(params, RangeParameter(range, kRangeFalloff));
  state.falloffTime = FixedSliderValue(params, RangeParameter(range, kRangeFalloffTime));
  state.linearDrop = step / (ticksPerSecond * state.falloffTime);
  state.exponentialFactor = in_data->utils->ansi.pow(kLeftAfterFalloffTime, state.linearDrop);
  return state;
}

double FalloffStep(FalloffState& state, double raw) {
  double current = raw;
  if (state.falloff == kFalloffExponential) {
    const double candidate = state.previous * state.exponentialFactor;
    if (candidate > current) current = candidate;
  }
  if (state.falloff == kFalloffLinear) {
    const double candidate = state.previous - state.linearDrop;
    if (candidate > current) current = candidate;
  }
  if (current < 0.0) current = 0.0;
  if (state.falloff == kFalloffIntegrate) current = current + state.previous;
  state.previous = current;
  return current;
}

double KeyframeValue(const OutputScale& scale, double shaped) {
  return (scale.outMax - scale.outMin) * shaped + scale.outMin;
}
