// The value of a parameter as the arithmetic wants it.
#pragma once

#include <cstdint>

#include "AE_Effect.h"
#include "shell/ParameterTable.h"

// A 16.16 fixed value as a double: exact, and negative values included.
inline double FixedToDouble(PF_Fixed value) {
  return value * 1.52587890625e-5;
}

inline double FixedSliderValue(const PF_ParamDef* const* params, int32_t index) {
  return FixedToDouble(params[index]->u.fd.value);
}

inline bool IsChecked(const PF_ParamDef* const* params, int32_t index) {
  return params[index]->u.bd.value != 0;
}

// The 1-based number of the choice that the popup shows.
inline int32_t PopupChoice(const PF_ParamDef* const* params, int32_t index) {
  return params[index]->u.pd.value;
}

inline bool IsRangeActive(const PF_ParamDef* const* params, int32_t range) {
  return IsChecked(params, RangeParameter(range, kRangeActive));
}

inline bool AnyRangeActive(const PF_ParamDef* const* params) {
  for (int32_t range = 0; range < kRangeCount; ++range) {
    if (IsRangeActive(params, range)) return true;
  }
  return false;
}
