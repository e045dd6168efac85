// Lists parameters.
#include "workbench/cli/ParamsCommand.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "workbench/host/ParameterText.h"

namespace {

bool IsGreyed(const EffectInstance& instance, size_t index) {
  return (instance.uiFlags.at(index) & PF_PUI_DISABLED) != 0;
}

}  // namespace

std::string ParameterLines(Stage& stage) {
  const ParameterList& parameters = stage.Session().Parameters();
  const EffectInstance& instance = stage.Instance();
  std::string text = " index   id  kind       name and value\n";
  for (size_t i = 1; i < parameters.Count(); ++i) {
    const DeclaredParameter& parameter = parameters.At(i);
    const PF_ParamType type = parameter.def.param_type;
    std::array<char, 64> head{};
    std::snprintf(head.data(), head.size(), "%6zu %4d  %-9s  ", i,
                  static_cast<int>(parameter.def.uu.id), KindText(type).c_str());
    text += head.data() + parameter.path;
    if (HasValue(type)) {
      text +=
          " = " + ValueText(instance, parameters, i) + "  (" + AcceptedText(parameters, i) + ")";
    }
    if (IsGreyed(instance, i)) text += "  [greyed]";
    text += '\n';
  }
  return text;
}

std::string ParameterJson(Stage& stage) {
  const ParameterList& parameters = stage.Session().Parameters();
  const EffectInstance& instance = stage.Instance();
  nlohmann::json list = nlohmann::json::array();
  for (size_t i = 1; i < parameters.Count(); ++i) {
    const DeclaredParameter& parameter = parameters.At(i);
    nlohmann::json entry{{"index", i},
                         {"id", parameter.def.uu.id},
                         {"type", parameter.def.param_type},
                         {"kind", KindText(parameter.def.param_type)},
                         {"name", parameter.Name()},
                         {"path", parameter.path},
                         {"flags", parameter.def.flags},
                         {"ui_flags", instance.uiFlags.at(i)},
                         {"greyed", IsGreyed(instance, i)}};
    if (HasValue(parameter.def.param_type)) {
      entry["value"] = ValueText(instance, parameters, i);
      entry["accepts"] = AcceptedText(parameters, i);
    }
    list.push_back(std::move(entry));
  }
  return list.dump(1) + "\n";
}
