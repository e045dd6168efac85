// Resonators side by side in the lanes of vectors, all of them stepped by one sample at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "analysis/ResonatorBank.h"

// How many samples are turned to double at a time: few enough to stay near the processor.
constexpr size_t kLaneBlockFrames = 256;

// A bank and where its recursions stand between two blocks. Lanes behind the bank's count are 0 and
// stay so. Plain arrays, because it is used by files for other processors; see ResonatorPass.h.
struct LaneState {
  double tuning[kBandCount] = {};
  double damping[kBandCount] = {};
  double low[kBandCount] = {};
  double band[kBandCount] = {};
  double sum[kBandCount] = {};
};

// How many vectors go through a sample together. More of them don't fit into the registers of
// vectors of two, and of vectors of four these are all the bands.
constexpr size_t kMostVectors = 8;

// Steps the vectors from `lane` on through `count` samples.
using LanePass = void (*)(LaneState& state, size_t lane, const double* samples, size_t count);

// What one kind of vector can do. Entry v - 1 of a table steps v vectors.
struct LanePasses {
  size_t lanes;                        // of a vector
  LanePass eachDamping[kMostVectors];  // samples: full scale is 1.0
  LanePass oneDamping[kMostVectors];   // for one damping in all lanes; samples: times it
};

extern const LanePasses kPasses_sse2;
extern const LanePasses kPasses_avx2;  // only for a processor that has AVX2

// SumMagnitudes with the given passes.
//
// Subnormal numbers are flushed meanwhile, and no sum shows it. The first sample other than 0 lifts
// a sum above 2^-42, and what lies below 2^-96 doesn't change it from then on. A state that is
// flushed lies below 2^-1022: left alone it would only decay, and beside the next sample, which is
// 2^-32 or more after the damping, it is lost. That holds for any damping of 16.16 bits and the
// tunings of the 32 bands. Tunings below 2^-900 would give sums that differ, but both so small that
// the level is 0.
void SumInLanes(const LanePasses& passes, const ResonatorBank& bank, const StereoFrames& frames,
                int32_t channel, std::array<double, kBandCount>& sums);
