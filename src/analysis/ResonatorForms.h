// The forms of the resonator bank: the same sums to the bit, each by other means of the processor.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "analysis/ResonatorBank.h"

struct ResonatorForm {
  const char* name;
  decltype(&SumMagnitudes) sumMagnitudes;
};

// The forms that this processor can run: the plain loop first, the fastest last.
std::span<const ResonatorForm> ResonatorForms();

// One resonator after the other. What it gives is right; every other form is held against it.
void SumMagnitudes_scalar(const ResonatorBank& bank, const StereoFrames& frames, int32_t channel,
                          std::array<double, kBandCount>& sums);
