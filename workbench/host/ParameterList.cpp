// Declarations, and finding them by name.
#include "workbench/host/ParameterList.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "workbench/Failure.h"

namespace {

std::string Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::vector<std::string> SplitChoices(std::string_view text) {
  std::vector<std::string> choices;
  for (;;) {
    const size_t bar = text.find('|');
    choices.push_back(Trimmed(text.substr(0, bar)));
    if (bar == std::string_view::npos) return choices;
    text.remove_prefix(bar + 1);
  }
}

std::string FaultOfSlider(A_long value, A_long validMin, A_long validMax) {
  if (validMin > validMax) return "its smallest value is above its largest";
  if (value < validMin || value > validMax) return "its first value is outside its range";
  return {};
}

std::string FaultOf(const PF_ParamDef& def) {
  if (std::memchr(def.name, 0, sizeof def.name) == nullptr) return "its name has no end";
  switch (def.param_type) {
    case PF_Param_FIX_SLIDER:
      return FaultOfSlider(def.u.fd.value, def.u.fd.valid_min, def.u.fd.valid_max);
    case PF_Param_SLIDER:
      return FaultOfSlider(def.u.sd.value, def.u.sd.valid_min, def.u.sd.valid_max);
    case PF_Param_POPUP:
      if (def.u.pd.u.namesptr == nullptr) return "it has no choices";
      if (SplitChoices(def.u.pd.u.namesptr).size() != static_cast<size_t>(def.u.pd.num_choices)) {
        return "its number of choices is not that of its texts";
      }
      return FaultOfSlider(def.u.pd.value, 1, def.u.pd.num_choices);
    default:
      return {};
  }
}

bool EndsWithPath(std::string_view path, std::string_view tail) {
  if (!path.ends_with(tail)) return false;
  return path.size() == tail.size() || path[path.size() - tail.size() - 1] == '/';
}

std::optional<size_t> AsIndex(std::string_view name) {
  size_t index = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), index);
  if (error != std::errc{} || end != name.data() + name.size()) return std::nullopt;
  return index;
}

}  // namespace

ParameterList::ParameterList() {
  DeclaredParameter input;
  input.def.param_type = PF_Param_LAYER;
  std::strcpy(input.def.name, "Input");
  input.path = "Input";
  parameters.push_back(std::move(input));
}

std::string ParameterList::Add(const PF_ParamDef& def) {
  std::string fault = FaultOf(def);
  if (!fault.empty()) return fault;
  if (def.param_type == PF_Param_GROUP_END && openGroups.empty()) return "it ends no group";

  DeclaredParameter& added = parameters.emplace_back();
  added.def = def;
  added.path = openGroups.empty() ? "" : openGroups.back();
  if (def.param_type == PF_Param_GROUP_END) {
    openGroups.pop_back();
  } else {
    if (!openGroups.empty()) added.path += '/';
    added.path += def.name;
  }
  if (def.param_type == PF_Param_GROUP_START) openGroups.push_back(added.path);
  if (def.param_type == PF_Param_POPUP) {
    added.text = def.u.pd.u.namesptr;
    added.choices = SplitChoices(added.text);
    added.def.u.pd.u.namesptr = added.text.c_str();
  }
  if (def.param_type == PF_Param_CHECKBOX && def.u.bd.u.nameptr != nullptr) {
    added.text = def.u.bd.u.nameptr;
    added.def.u.bd.u.nameptr = added.text.c_str();
  }
  return {};
}

size_t ParameterList::Find(std::string_view name) const {
  if (const auto index = AsIndex(name)) {
    if (*index > 0 && *index < Count()) return *index;
    throw UsageFailure("There is no parameter " + std::string(name) +
                       ": the indices run from 1 to " + std::to_string(Count() - 1) +
                       ". `workbench params` lists them.");
  }
  std::vector<size_t> found;
  for (size_t i = 1; i < Count(); ++i) {
    if (!HasValue(At(i).def.param_type)) continue;
    if (At(i).path == name) return i;
    if (EndsWithPath(At(i).path, name)) found.push_back(i);
  }
  if (found.size() == 1) return found.front();
  if (found.empty()) {
    throw UsageFailure("There is no parameter named \"" + std::string(name) +
                       "\". `workbench params` lists them.");
  }
  throw UsageFailure("Several parameters are named \"" + std::string(name) +
                     "\". Say which, such as \"" + At(found.front()).path + "\".");
}

bool HasValue(PF_ParamType type) {
  switch (type) {
    case PF_Param_LAYER:
    case PF_Param_SLIDER:
    case PF_Param_FIX_SLIDER:
    case PF_Param_CHECKBOX:
    case PF_Param_POINT:
    case PF_Param_POPUP:
      return true;
    default:
      return false;
  }
}
