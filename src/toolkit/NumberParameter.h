// A number that controls can show, type and step.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/Parameter.h"

struct NumberRange {
  double minimum = 0.0;
  double maximum = 100.0;
  double defaultValue = 0.0;
  double step = 1.0;
  int32_t decimals = 0;  // of the text, 0 to 9
};

// Never leaves its range. A range whose ends are the wrong way round is turned; an end that is no
// number is the least or largest double.
class NumberParameter : public Parameter {
 public:
  NumberParameter(std::string parameterName, const NumberRange& numberRange);

  double GetValue() const { return value; }
  // The nearest in the range; what is no number changes nothing.
  void SetValue(double newValue);

  bool HasChanged() const override { return changed || pending; }
  const std::string& GetName() const override { return name; }
  void FlushChange() override;
  std::string GetValueText() const override;
  // Blanks around the number and a "%" behind it are passed over. A number with more digits than a
  // double holds counts as the nearest one that it does hold.
  bool SetFromText(const std::string& text) override;
  // Shift makes a step ten times as large, Control a tenth.
  void StepBy(int32_t steps, const Modifiers& modifiers) override;
  void ResetToDefault() override { SetValue(range.defaultValue); }

 private:
  std::string name;
  NumberRange range;
  double value = 0.0;
  bool pending = false;  // set since the last FlushChange
  bool changed = false;  // set before it
};
