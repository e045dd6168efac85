// The values of the parameters as one command gets them: a copy of its own.
#pragma once

#include <string>
#include <vector>

#include "workbench/host/EffectInstance.h"

class PassedParameters {
 public:
  // instance     null: a command without parameters
  // downsample   points are handed out in pixels of a world of 1 / downsample of the layer's size
  PassedParameters(const EffectInstance* instance, A_u_long downsample);
  PassedParameters(const PassedParameters&) = delete;
  PassedParameters& operator=(const PassedParameters&) = delete;

  // An array of pointers, as the plug-in gets it; null where there are none.
  PF_ParamDef** Array() { return pointers.empty() ? nullptr : pointers.data(); }

  // The indices of the values that differ from those handed out.
  std::vector<size_t> Changed() const;

 private:
  std::vector<PF_ParamDef> handedOut;
  std::vector<PF_ParamDef> values;
  std::vector<PF_ParamDef*> pointers;
};
