// A list of parameters, and finding in it.
#include "toolkit/ParameterOwner.h"

#include <algorithm>

ParameterOwner::~ParameterOwner() {
  ParameterOwner::DeleteAllParameters();
}

int32_t ParameterOwner::GetParameterCount() const {
  return static_cast<int32_t>(ownedParameters.size());
}

void ParameterOwner::DeleteAllParameters() {
  for (const Parameter* const parameter : ownedParameters) delete parameter;
  ownedParameters.clear();
}

void ParameterOwner::AddOwnedParameter(Parameter* parameter) {
  if (parameter == nullptr || GetParameterIndex(parameter) >= 0) return;
  ownedParameters.push_back(parameter);
  parameter->SetOwner(this);
  parameter->SetIndex(GetParameterCount() - 1);
}

Parameter* ParameterOwner::GetParameterAt(int32_t index) const {
  if (index < 0 || index >= GetParameterCount()) return nullptr;
  return ownedParameters[static_cast<size_t>(index)];
}

Parameter* ParameterOwner::GetParameterByName(const std::string& name) const {
  return GetParameterAt(GetParameterIndexByName(name));
}

int32_t ParameterOwner::GetParameterIndexByName(const std::string& name) const {
  const auto found =
      std::find_if(ownedParameters.begin(), ownedParameters.end(),
                   [&name](const Parameter* parameter) { return parameter->GetName() == name; });
  return found == ownedParameters.end() ? -1
                                        : static_cast<int32_t>(found - ownedParameters.begin());
}

int32_t ParameterOwner::GetParameterIndex(const Parameter* parameter) const {
  const auto found = std::find(ownedParameters.begin(), ownedParameters.end(), parameter);
  return found == ownedParameters.end() ? -1
                                        : static_cast<int32_t>(found - ownedParameters.begin());
}

void ParameterOwner::FlushParameterChanges() {
  for (Parameter* const parameter : ownedParameters) parameter->FlushChange();
}

void ParameterOwner::NotifyParameterChanges() {
  for (int32_t index = 0; index < GetParameterCount(); ++index) {
    if (GetParameterAt(index)->HasChanged()) OnParameterChanged(index);
  }
}
