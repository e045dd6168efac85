// A pass of resonators through a block of samples, for a vector of any width.
//
// The including files are compiled for different processors, and the linker keeps one copy of what
// they share by name. So all of this is static, and nothing here or there calls a function of the
// standard library.
#pragma once

#include <emmintrin.h>

#include <utility>

#include "analysis/ResonatorLanes.h"

// The arrays of a bank lie at any address.
template <typename Doubles, size_t kVectors>
static void LoadVectors(const double* lanes, Doubles (&vectors)[kVectors]) {
#pragma GCC unroll 8
  for (Doubles& vector : vectors) {
    __builtin_memcpy(&vector, lanes, sizeof vector);
    lanes += sizeof vector / sizeof *lanes;
  }
}

// Few frames, so that while the last recursions of a block run the processor reaches the conversion
// of the next one, which then costs next to nothing.
constexpr size_t kBlockFrames = 16;

static inline void ConvertWholeBlock(const int16_t* frames, const FrameMix& mix, double* samples) {
  const __m128i weights = _mm_set1_epi32(mix.rightWeight * 65536 + mix.leftWeight);
  const __m128d gain = _mm_set1_pd(mix.gain);
  for (size_t i = 0; i < kBlockFrames; i += 4) {
    const __m128i pairs = _mm_loadu_si128(reinterpret_cast<const __m128i*>(frames + 2 * i));
    const __m128i sums = _mm_madd_epi16(pairs, weights);
    const __m128i highSums = _mm_unpackhi_epi64(sums, sums);
    _mm_storeu_pd(samples + i, _mm_mul_pd(_mm_cvtepi32_pd(sums), gain));
    _mm_storeu_pd(samples + i + 2, _mm_mul_pd(_mm_cvtepi32_pd(highSums), gain));
  }
}

// Turns up to a block of frames into samples and returns how many they are.
static inline size_t ConvertFrames(const int16_t* frames, size_t left, const FrameMix& mix,
                                   double* samples) {
  if (left >= kBlockFrames) {
    ConvertWholeBlock(frames, mix, samples);
    return kBlockFrames;
  }
  int16_t padded[2 * kBlockFrames] = {};
  __builtin_memcpy(padded, frames, 2 * left * sizeof *frames);
  ConvertWholeBlock(padded, mix, samples);
  return left;
}

// The order of operations within a lane is that of the plain loop. Many vectors go through one
// sample together: each recursion is a long chain, and the chains hide behind each other.
template <typename Doubles, typename Bits, size_t kVectors, bool kOneDamping>
static void RunPass(LaneBank& lanes, size_t lane, const StereoFrames& frames, const FrameMix& mix) {
  Doubles F[kVectors];
  Doubles q[kVectors];
  LoadVectors(lanes.tuning + lane, F);
  LoadVectors(lanes.damping + lane, q);
  Doubles low[kVectors] = {};
  Doubles band[kVectors] = {};
  Doubles sum[kVectors] = {};
  const Bits magnitude = Bits{} + INT64_MAX;
  const auto end = static_cast<size_t>(frames.count);
  for (size_t begin = 0; begin < end; begin += kBlockFrames) {
    // Aligned, the compiler aligns its spills as well, and none of them straddles a cache line.
    alignas(64) double samples[kBlockFrames];
    const size_t count = ConvertFrames(frames.samples + 2 * begin, end - begin, mix, samples);
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
  }
  __builtin_memcpy(lanes.sum + lane, sum, sizeof sum);
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
