// Copies of an instance's values.
#include "workbench/host/PassedParameters.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace {

using ParameterBytes = std::array<std::byte, sizeof(PF_ParamDef)>;

ParameterBytes BytesOf(const PF_ParamDef& value) {
  ParameterBytes bytes{};
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}

PF_Fixed Scaled(PF_Fixed pixels, A_u_long downsample) {
  return static_cast<PF_Fixed>(std::lround(static_cast<double>(pixels) / downsample));
}

}  // namespace

PassedParameters::PassedParameters(const EffectInstance* instance, A_u_long downsample) {
  if (instance == nullptr) return;
  for (size_t i = 0; i < instance->ParameterCount(); ++i) {
    PF_ParamDef& value = handedOut.emplace_back(instance->Value(i));
    if (value.param_type != PF_Param_POINT) continue;
    value.u.td.x_value = Scaled(value.u.td.x_value, downsample);
    value.u.td.y_value = Scaled(value.u.td.y_value, downsample);
  }
  values = handedOut;
  for (PF_ParamDef& value : values) pointers.push_back(&value);
}

std::vector<size_t> PassedParameters::Changed() const {
  std::vector<size_t> changed;
  for (size_t i = 0; i < values.size(); ++i) {
    if (BytesOf(values[i]) != BytesOf(handedOut[i])) changed.push_back(i);
  }
  return changed;
}
