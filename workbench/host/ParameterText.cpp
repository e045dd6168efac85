// Texts to values and back.
#include "workbench/host/ParameterText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "workbench/Failure.h"

namespace {

constexpr double kFixedOne = 65536.0;

[[noreturn]] void Refuse(const ParameterList& parameters, size_t index, std::string_view text) {
  throw UsageFailure(parameters.At(index).path + " takes " + AcceptedText(parameters, index) +
                     ", not \"" + std::string(text) + "\".");
}

std::optional<double> AsNumber(std::string_view text) {
  double number = 0.0;
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(number)) {
    return std::nullopt;
  }
  return number;
}

// The number, if it is whole and 32 bits hold it.
std::optional<A_long> AsLong(double number) {
  using Limits = std::numeric_limits<A_long>;
  if (number != std::trunc(number) || number < Limits::min() || number > Limits::max()) {
    return std::nullopt;
  }
  return static_cast<A_long>(number);
}

std::optional<A_long> AsWhole(std::string_view text) {
  const auto number = AsNumber(text);
  return number ? AsLong(*number) : std::nullopt;
}

// The nearest 16.16 value.
std::optional<PF_Fixed> AsFixed(std::string_view text) {
  const auto number = AsNumber(text);
  return number ? AsLong(std::round(*number * kFixedOne)) : std::nullopt;
}

std::optional<A_long> AsCheckbox(std::string_view text) {
  if (text == "on" || text == "1") return 1;
  if (text == "off" || text == "0") return 0;
  return std::nullopt;
}

std::optional<A_long> AsChoice(const DeclaredParameter& parameter, std::string_view text) {
  for (size_t i = 0; i < parameter.choices.size(); ++i) {
    if (parameter.choices[i] == text) return static_cast<A_long>(i + 1);
  }
  const auto number = AsWhole(text);
  if (!number || *number < 1 || *number > parameter.def.u.pd.num_choices) return std::nullopt;
  return number;
}

bool SetPoint(PF_PointDef& point, std::string_view text) {
  const size_t comma = text.find(',');
  if (comma == std::string_view::npos) return false;
  const auto x = AsFixed(text.substr(0, comma));
  const auto y = AsFixed(text.substr(comma + 1));
  if (!x || !y) return false;
  point.x_value = *x;
  point.y_value = *y;
  return true;
}

bool SetLayer(EffectInstance& instance, size_t index, std::string_view text) {
  if (text == "none" || text == "0") {
    instance.chosenLayers.erase(index);
    return true;
  }
  const auto& layers = instance.EffectLayer().comp->layers;
  const auto number = AsWhole(text);
  if (!number || *number < 1 || static_cast<size_t>(*number) > layers.size()) return false;
  instance.chosenLayers[index] = layers[static_cast<size_t>(*number) - 1].get();
  return true;
}

// Stores a value that was read and lies within the limits.
template <typename Value>
bool StoreWithin(std::optional<Value> value, Value smallest, Value largest, Value& target) {
  if (!value || *value < smallest || *value > largest) return false;
  target = *value;
  return true;
}

bool TrySet(EffectInstance& instance, const DeclaredParameter& parameter, size_t index,
            std::string_view text) {
  PF_ParamDefUnion& u = instance.Value(index).u;
  switch (parameter.def.param_type) {
    case PF_Param_FIX_SLIDER:
      return StoreWithin(AsFixed(text), u.fd.valid_min, u.fd.valid_max, u.fd.value);
    case PF_Param_SLIDER:
      return StoreWithin(AsWhole(text), u.sd.valid_min, u.sd.valid_max, u.sd.value);
    case PF_Param_CHECKBOX:
      return StoreWithin<PF_ParamValue>(AsCheckbox(text), 0, 1, u.bd.value);
    case PF_Param_POPUP:
      return StoreWithin<PF_ParamValue>(AsChoice(parameter, text), 1, u.pd.num_choices, u.pd.value);
    case PF_Param_POINT:
      return SetPoint(u.td, text);
    case PF_Param_LAYER:
      return SetLayer(instance, index, text);
    default:
      return false;
  }
}

// The fewest decimals that read back as the same value: at most 5, where a step is 1/65536.
std::string FixedText(PF_Fixed value) {
  std::array<char, 32> buffer{};
  for (int decimals = 0;; ++decimals) {
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                       value / kFixedOne, std::chars_format::fixed, decimals);
    std::string text(buffer.data(), written.ptr);
    if (decimals == 5 || AsFixed(text) == value) return text;
  }
}

std::string LayerText(const EffectInstance& instance, size_t index) {
  const auto chosen = instance.chosenLayers.find(index);
  if (chosen == instance.chosenLayers.end()) return "none";
  const auto& layers = instance.EffectLayer().comp->layers;
  for (size_t i = 0; i < layers.size(); ++i) {
    if (layers[i].get() == chosen->second) return std::to_string(i + 1);
  }
  return "none";
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

}  // namespace

void SetFromText(EffectInstance& instance, const ParameterList& parameters, size_t index,
                 std::string_view text) {
  const DeclaredParameter& parameter = parameters.At(index);
  if (!HasValue(parameter.def.param_type)) {
    throw UsageFailure(parameter.path + " (" + std::to_string(index) + ") has no value to set.");
  }
  if (!TrySet(instance, parameter, index, text)) Refuse(parameters, index, text);
}

std::string ValueText(const EffectInstance& instance, const ParameterList& parameters,
                      size_t index) {
  const PF_ParamDefUnion& u = instance.Value(index).u;
  switch (instance.Value(index).param_type) {
    case PF_Param_FIX_SLIDER:
      return FixedText(u.fd.value);
    case PF_Param_SLIDER:
      return std::to_string(u.sd.value);
    case PF_Param_CHECKBOX:
      return u.bd.value != 0 ? "on" : "off";
    case PF_Param_POPUP:
      return parameters.At(index).choices[static_cast<size_t>(u.pd.value) - 1];
    case PF_Param_POINT:
      return FixedText(u.td.x_value) + "," + FixedText(u.td.y_value);
    case PF_Param_LAYER:
      return LayerText(instance, index);
    default:
      return {};
  }
}

std::string AcceptedText(const ParameterList& parameters, size_t index) {
  const DeclaredParameter& parameter = parameters.At(index);
  const PF_ParamDefUnion& u = parameter.def.u;
  switch (parameter.def.param_type) {
    case PF_Param_FIX_SLIDER:
      return FixedText(u.fd.valid_min) + " to " + FixedText(u.fd.valid_max);
    case PF_Param_SLIDER:
      return std::to_string(u.sd.valid_min) + " to " + std::to_string(u.sd.valid_max);
    case PF_Param_CHECKBOX:
      return "on, off";
    case PF_Param_POPUP:
      return Joined(parameter.choices);
    case PF_Param_POINT:
      return "X,Y in pixels";
    case PF_Param_LAYER:
      return "a layer's number, none";
    default:
      return {};
  }
}

std::string KindText(PF_ParamType type) {
  switch (type) {
    case PF_Param_LAYER:
      return "layer";
    case PF_Param_SLIDER:
    case PF_Param_FIX_SLIDER:
      return "slider";
    case PF_Param_CHECKBOX:
      return "checkbox";
    case PF_Param_POINT:
      return "point";
    case PF_Param_POPUP:
      return "popup";
    case PF_Param_GROUP_START:
      return "group";
    case PF_Param_GROUP_END:
      return "group end";
    default:
      return "row";
  }
}
