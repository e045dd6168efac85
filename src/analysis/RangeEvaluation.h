// From 32 band levels to one raw value for each of the three ranges.
#pragma once

#include <cstdint>
#include <span>

#include "AE_Effect.h"
#include "analysis/BandTable.h"
#include "analysis/RangeGeometry.h"

// Reduces the bands of each range to one value.
//
// levels     each held to 0.0 .. 1.0 first, NaN to 0.0
// values     0.0 for an inactive range and for one whose bands don't exist or are in the wrong
//            order. Average of Range: how far its bands reach into its window, in the mean. Peak of
//            Range: the farthest of them. Without a window's height, whatever the type: 1.0 as soon
//            as one band is at or above lowerLevel, else 0.0. All in 0.0 .. 1.0, but a Type that is
//            none of its choices adds the bands up.
// geometry   worked out for this w and h before, or null: then it is worked out here
// in_data    takes no part in the result
void EvaluateRanges(const PF_InData* in_data, const PF_ParamDef* const* params,
                    std::span<const double, kBandCount> levels,
                    std::span<double, kRangeCount> values, int32_t w, int32_t h,
                    const RangeGeometry* geometry);
