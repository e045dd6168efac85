// Which application is calling.
#pragma once

#include "AE_Effect.h"

// 'PrMr': offers effects of this kind too, but has no keyframe interface that the effect could use.
constexpr A_long kPremiereId = 0x50724D72;

inline bool IsPremiere(const PF_InData* in_data) {
  return in_data->appl_id == kPremiereId;
}
