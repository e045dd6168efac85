// The parameters that the plug-in has declared, with the paths under which a user finds them.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "AE_Effect.h"

struct DeclaredParameter {
  PF_ParamDef def{};
  std::string path;                  // groups and name, such as "Range 2/Falloff"
  std::vector<std::string> choices;  // of a popup, without the blanks around them
  std::string text;                  // the host's copy of the popup's choices or the box's label

  std::string_view Name() const { return def.name; }
};

class ParameterList {
 public:
  // Begins with the host's own parameter 0, the layer that the effect is applied to.
  ParameterList();

  // Takes over a declaration with its texts. Returns what is wrong with it, or nothing.
  std::string Add(const PF_ParamDef& def);

  size_t Count() const { return parameters.size(); }
  const DeclaredParameter& At(size_t index) const { return parameters[index]; }

  // The parameter that `name` means: an index, a whole path, or the end of a path that no other
  // parameter shares. Throws UsageFailure where it means none or several.
  size_t Find(std::string_view name) const;

 private:
  // A deque, since the definitions point at the texts beside them.
  std::deque<DeclaredParameter> parameters;
  std::vector<std::string> openGroups;  // their paths, the innermost last
};

// Whether a parameter of this type has a value that a user sets.
bool HasValue(PF_ParamType type);
