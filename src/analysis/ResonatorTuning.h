// From the user's Q and a choice of bands to the coefficients of the resonator bank.
#pragma once

#include <span>

#include "AE_EffectCB.h"
#include "analysis/BandTable.h"
#include "analysis/ResonatorBank.h"

// Packs the coefficients of the bands that `mask` asks for, in ascending order.
//
// mask   0.0 (of either sign) leaves a band out, any other value, NaN too, takes it in
// Q      damping, 66/65536 to 1; any other value is used as it stands
// ansi   the host's maths: sin
ResonatorBank TuneResonators(std::span<const double, kBandCount> mask, double Q,
                             const PF_ANSICallbacks& ansi);
