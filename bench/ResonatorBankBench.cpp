// What a band and a sample cost in the resonator bank, on music and on silence after a click.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <numbers>
#include <random>
#include <vector>

#include "AE_EffectCB.h"
#include "analysis/ResonatorBank.h"
#include "analysis/ResonatorTuning.h"
#include "shell/ParameterTable.h"

namespace {

constexpr size_t kFrames = 6615;  // 150 ms
constexpr double kDefaultQ = 6554.0 / 65536.0;

// A sawtooth bass, a chord that stands left and right apart, and a drum of falling noise.
std::vector<int16_t> MakeMusic() {
  std::minstd_rand random(1);
  std::vector<int16_t> samples(2 * kFrames);
  for (size_t i = 0; i < kFrames; ++i) {
    const double seconds = static_cast<double>(i) / 44100.0;
    const double bass = 0.3 * (2.0 * std::fmod(55.0 * seconds, 1.0) - 1.0);
    double chord = 0.0;
    for (const double hz : {220.0, 277.18, 329.63, 1760.0}) {
      chord += 0.1 * std::sin(2.0 * std::numbers::pi * hz * seconds);
    }
    const double noise = static_cast<double>(random()) / std::minstd_rand::max() - 0.5;
    const double drum = 0.5 * noise * std::exp(-30.0 * seconds);
    samples[2 * i] = static_cast<int16_t>(std::lround(32767.0 * (bass + chord + drum)));
    samples[2 * i + 1] = static_cast<int16_t>(std::lround(32767.0 * (bass - 0.5 * chord + drum)));
  }
  return samples;
}

std::vector<int16_t> MakeClick() {
  std::vector<int16_t> samples(2 * kFrames);
  samples[0] = samples[1] = 32767;
  return samples;
}

ResonatorBank TuneHighestBands(size_t count, double Q) {
  PF_ANSICallbacks ansi{};
  ansi.sin = [](double x) { return std::sin(x); };
  std::array<double, kBandCount> mask{};
  for (size_t i = 0; i < count; ++i) mask[mask.size() - 1 - i] = 1.0;
  return TuneResonators(mask, Q, ansi);
}

void RunBank(benchmark::State& state, const std::vector<int16_t>& samples, double Q) {
  const auto bands = static_cast<size_t>(state.range(0));
  const ResonatorBank bank = TuneHighestBands(bands, Q);
  const StereoFrames frames{samples.data(), static_cast<int32_t>(kFrames)};
  std::array<double, kBandCount> sums{};
  const std::clock_t begin = std::clock();
  while (state.KeepRunning()) {
    SumMagnitudes(bank, frames, kChannelMix, sums);
    benchmark::DoNotOptimize(sums.data());
    benchmark::ClobberMemory();
  }
  // The library's own rates print as seconds, whatever they count.
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  const double steps =
      static_cast<double>(state.iterations()) * static_cast<double>(bands * kFrames);
  state.counters["ns_per_band_sample"] = 1e9 * seconds / steps;
}

void Music(benchmark::State& state) {
  RunBank(state, MakeMusic(), kDefaultQ);
}

void SilenceAfterClick(benchmark::State& state) {
  RunBank(state, MakeClick(), kDefaultQ);
}

void MusicAtQ1(benchmark::State& state) {
  RunBank(state, MakeMusic(), 1.0);
}

// The largest damping: the tail sinks below the smallest normal number within the window.
void SilenceAfterClickAtQ1(benchmark::State& state) {
  RunBank(state, MakeClick(), 1.0);
}

BENCHMARK(Music)->Arg(1)->Arg(11)->Arg(32);
BENCHMARK(MusicAtQ1)->Arg(1)->Arg(11)->Arg(32);
BENCHMARK(SilenceAfterClick)->Arg(1)->Arg(11)->Arg(32);
BENCHMARK(SilenceAfterClickAtQ1)->Arg(1)->Arg(11)->Arg(32);

}  // namespace
