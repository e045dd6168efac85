// An instance with its declared values.
#include "workbench/host/EffectInstance.h"

namespace {

PF_Fixed PercentToPixels(PF_Fixed percent, int32_t size) {
  return static_cast<PF_Fixed>(int64_t{percent} * size / 100);
}

}  // namespace

EffectInstance::EffectInstance(const ParameterList& parameterList, Layer& effectLayer)
    : layer(&effectLayer) {
  for (size_t i = 0; i < parameterList.Count(); ++i) {
    PF_ParamDef& value = values.emplace_back(parameterList.At(i).def);
    uiFlags[i] = value.ui_flags;
    if (value.param_type != PF_Param_POINT) continue;
    value.u.td.x_value = PercentToPixels(value.u.td.x_dephault, layer->comp->width);
    value.u.td.y_value = PercentToPixels(value.u.td.y_dephault, layer->comp->height);
  }
}
