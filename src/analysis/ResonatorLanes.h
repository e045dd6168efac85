// Resonators side by side in the lanes of vectors, all of them stepped by one sample at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "analysis/ResonatorBank.h"

// A bank in lanes; those behind its count are 0 and stay so. Plain arrays, because files for other
// processors use it: see ResonatorPass.h.
struct LaneBank {
  double tuning[kBandCount] = {};
  double damping[kBandCount] = {};
  double sum[kBandCount] = {};  // of magnitudes, set by a pass
};

// How frames become samples: (left x leftWeight + right x rightWeight) x gain.
struct FrameMix {
  int16_t leftWeight;
  int16_t rightWeight;
  double gain;
};

// How many vectors go through a sample together. More of them don't fit into the registers of
// vectors of two, and of vectors of four these are all the bands.
constexpr size_t kMostVectors = 8;

// Runs the frames through the vectors from `lane` on, from rest.
using LanePass = void (*)(LaneBank& lanes, size_t lane, const StereoFrames& frames,
                          const FrameMix& mix);

// What one kind of vector can do. Entry v - 1 of a table is for v vectors.
struct LanePasses {
  size_t lanes;                        // of a vector
  LanePass eachDamping[kMostVectors];  // full scale of the samples is 1.0
  LanePass oneDamping[kMostVectors];   // for one damping in all lanes; full scale is that damping
};

extern const LanePasses kPasses_sse2;
extern const LanePasses kPasses_avx2;  // only for a processor that has AVX2

// SumMagnitudes with the given passes.
//
// Subnormal numbers are flushed meanwhile, and no sum shows it. The first sample other than 0 lifts
// a sum above 2^-42, and what lies below 2^-96 doesn't change it from then on. A state that is
// flushed lies below 2^-1022: left alone it would only decay, and beside the next sample, which is
// 2^-32 or more after the damping, it is lost. That holds for the dampings at which a resonator is
// stable and the tunings of the 32 bands. With tunings below 2^-900 sums would differ, but they are
// then so small that the level is 0 in any form.
void SumInLanes(const LanePasses& passes, const ResonatorBank& bank, const StereoFrames& frames,
                int32_t channel, std::array<double, kBandCount>& sums);
