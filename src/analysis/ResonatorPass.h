// A pass of resonators through a block of samples, for a vector of any width.
//
// The including files are compiled for different processors, and the linker keeps one copy of what
// they share by name. So all of this is static, and nothing here or there calls a function of the
// standard library.
#pragma once

#include <utility>

#include "analysis/ResonatorLanes.h"

// Between two passes the vectors lie in plain arrays, at any address.
template <typename Doubles, size_t kVectors>
static void LoadVectors(const double* lanes, Doubles (&vectors)[kVectors]) {
#pragma GCC unroll 8
  for (Doubles& vector : vectors) {
    __builtin_memcpy(&vector, lanes, sizeof vector);
    lanes += sizeof vector / sizeof *lanes;
  }
}

template <typename Doubles, size_t kVectors>
static void StoreVectors(const Doubles (&vectors)[kVectors], double* lanes) {
#pragma GCC unroll 8
  for (const Doubles& vector : vectors) {
    __builtin_memcpy(lanes, &vector, sizeof vector);
    lanes += sizeof vector / sizeof *lanes;
  }
}

// The order of operations within a lane is that of the plain loop. Many vectors go through one
// sample together: each recursion is a long chain, and the chains hide behind each other.
template <typename Doubles, typename Bits, size_t kVectors, bool kOneDamping>
static void RunPass(LaneState& state, size_t lane, const double* samples, size_t count) {
  Doubles F[kVectors];
  Doubles q[kVectors];
  Doubles low[kVectors];
  Doubles band[kVectors];
  Doubles sum[kVectors];
  LoadVectors(state.tuning + lane, F);
  LoadVectors(state.damping + lane, q);
  LoadVectors(state.low + lane, low);
  LoadVectors(state.band + lane, band);
  LoadVectors(state.sum + lane, sum);
  const Bits magnitude = Bits{} + INT64_MAX;
  for (size_t i = 0; i < count; ++i) {
    const Doubles x = samples[i] - Doubles{};  // in all lanes
#pragma GCC unroll 8
    for (size_t v = 0; v < kVectors; ++v) {
      low[v] = low[v] + band[v] * F[v];
      const Doubles input = kOneDamping ? x : x * q[v];
      const Doubles high = input - low[v] - band[v] * q[kOneDamping ? 0 : v];
      band[v] = band[v] + high * F[v];
      sum[v] = sum[v] + (Doubles)((Bits)band[v] & magnitude);
    }
  }
  StoreVectors(low, state.low + lane);
  StoreVectors(band, state.band + lane);
  StoreVectors(sum, state.sum + lane);
}

// A pass for each count of vectors. Bits are integers of the width of Doubles.
template <typename Doubles, typename Bits>
static consteval LanePasses MakePasses() {
  return []<size_t... kIndices>(std::index_sequence<kIndices...>) {
    return LanePasses{sizeof(Doubles) / sizeof(double),
                      {RunPass<Doubles, Bits, kIndices + 1, false>...},
                      {RunPass<Doubles, Bits, kIndices + 1, true>...}};
  }
  (std::make_index_sequence<kMostVectors>());
}
