// The resonators that a window of sound runs through, and the pass that runs it.
#pragma once

#include <array>
#include <cstdint>

#include "analysis/BandTable.h"
#include "analysis/StereoFrames.h"

// Coefficients of the resonators in use, packed to the front: a mask of 11 bands costs 11 runs.
struct ResonatorBank {
  int32_t count = 0;                         // 0 to kBandCount
  std::array<int32_t, kBandCount> band{};    // the band that each resonator stands for
  std::array<double, kBandCount> tuning{};   // F = 2 sin(pi f / sample rate)
  std::array<double, kBandCount> damping{};  // q = 1 / quality factor
};

// Runs `frames` through each resonator, from rest, and adds up the magnitude of its band-pass
// output.
//
// channel   1 left, 2 right, any other value the mean of both
// sums      sums[i] belongs to resonator i, full scale is 1.0 a sample; the entries from bank.count
//           on are not touched. No frames give 0.0.
//
// The resonator is the two-pole state-variable filter of H. Chamberlin, Musical Applications of
// Microprocessors. Its input is scaled by q, so the gain at the centre frequency is about 1
// whatever q is. This loop defines the sums: any other form has to give the same bits.
void SumMagnitudes(const ResonatorBank& bank, const StereoFrames& frames, int32_t channel,
                   std::array<double, kBandCount>& sums);
