// A value that a control can be bound to.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/ControlTypes.h"

class ParameterOwner;

class Parameter {
 public:
  virtual ~Parameter() = default;

  // Whether the value has changed since a control last took it.
  virtual bool HasChanged() const = 0;
  virtual const std::string& GetName() const = 0;
  // Makes what was set since the last update the value that controls see.
  virtual void FlushChange() {}

  // For controls that show the value as text and change it; a parameter without a text has an empty
  // one and stays as it is.
  virtual std::string GetValueText() const { return {}; }
  // False, and nothing has changed, where the text says no value.
  virtual bool SetFromText(const std::string& /*text*/) { return false; }
  // The modifiers make the step coarse or fine.
  virtual void StepBy(int32_t /*steps*/, const Modifiers& /*modifiers*/) {}
  virtual void ResetToDefault() {}

  // The list that the parameter stands in, and where.
  virtual void SetOwner(ParameterOwner* newOwner) { owner = newOwner; }
  virtual ParameterOwner* GetOwner() const { return owner; }
  virtual void SetIndex(int32_t newIndex) { index = newIndex; }
  virtual int32_t GetIndex() const { return index; }

 private:
  ParameterOwner* owner = nullptr;
  int32_t index = -1;
};
