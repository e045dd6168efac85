// Something with a list of parameters.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/Parameter.h"

class ParameterOwner {
 public:
  // Deletes the parameters.
  virtual ~ParameterOwner();
  ParameterOwner() = default;
  ParameterOwner(const ParameterOwner&) = delete;
  ParameterOwner& operator=(const ParameterOwner&) = delete;

  virtual void OnParameterChanged(int32_t index) = 0;
  virtual int32_t GetParameterCount() const;
  virtual void DeleteAllParameters();
  // Takes the parameter over and tells it its owner and index.
  virtual void AddOwnedParameter(Parameter* parameter);
  // Null outside the list.
  virtual Parameter* GetParameterAt(int32_t index) const;
  virtual Parameter* GetParameterByName(const std::string& name) const;
  // -1 where there is none.
  virtual int32_t GetParameterIndexByName(const std::string& name) const;
  virtual int32_t GetParameterIndex(const Parameter* parameter) const;
  virtual void FlushParameterChanges();
  // OnParameterChanged for each that has changed; it may drop parameters, but not delete this.
  virtual void NotifyParameterChanges();

 private:
  std::vector<Parameter*> ownedParameters;
};
