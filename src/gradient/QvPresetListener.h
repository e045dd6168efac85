// Who is told which preset was chosen.
#pragma once

#include <cstdint>

class QvPresetListener {
 public:
  virtual ~QvPresetListener() = default;
  // index   -1 where the menu was left without a choice
  virtual void PresetSelected(int32_t index) = 0;
};
