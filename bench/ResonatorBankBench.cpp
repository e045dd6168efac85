// What the forms of the resonator bank cost beside the plain loop, on music and on silence after a
// click. With --gates the exit status is 1 where a form is slower than it has to be.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <iostream>
#include <numbers>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/ResonatorForms.h"
#include "shell/ParameterTable.h"
#include "tools/bankcases/BankCase.h"

namespace {

constexpr size_t kFrames = 6629;  // 451 ticks of 1/3000 s, the window at 30 keyframes a second
constexpr double kDefaultQ = 6554.0 / 65536.0;
constexpr int kRounds = 61;

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

ResonatorBank LowestBands(int64_t count, double Q) {
  return TunedBank(static_cast<uint32_t>((uint64_t{1} << count) - 1), Q);
}

// Processor time, which neighbours on the machine disturb less than the clock on the wall.
double SecondsOf(const ResonatorForm& form, const ResonatorBank& bank,
                 const std::vector<int16_t>& samples) {
  constexpr int kRuns = 4;
  std::array<double, kBandCount> sums{};
  const std::clock_t begin = std::clock();
  for (int run = 0; run < kRuns; ++run) {
    form.sumMagnitudes(bank, {samples.data(), kFrames}, kChannelMix, sums);
    benchmark::DoNotOptimize(sums.data());
    benchmark::ClobberMemory();
  }
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / kRuns;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

struct Gate {
  const char* figure;
  double least;
  double most;
};

// Well beside what a quiet machine gives: only a fault fails them, not a neighbour.
constexpr double kNoLimit = 1e9;
constexpr Gate kGates[] = {
    {"Speed/32 AVX2", 10.0, kNoLimit}, {"Speed/11 AVX2", 7.0, kNoLimit},
    {"Speed/1 AVX2", 0.9, kNoLimit},   {"Speed/32 SSE2", 5.0, kNoLimit},
    {"Speed/1 SSE2", 0.9, kNoLimit},   {"Tail/32 AVX2", 0.0, 1.15},
    {"Tail/32 SSE2", 0.0, 1.15},
};

std::vector<std::string> missedGates;

void Report(benchmark::State& state, const std::string& row, const char* form, double ratio) {
  state.counters[form] = ratio;
  const std::string figure = row + std::to_string(state.range(0)) + ' ' + form;
  for (const Gate& gate : kGates) {
    if (figure != gate.figure || (ratio >= gate.least && ratio <= gate.most)) continue;
    missedGates.push_back(figure + " is " + std::to_string(ratio));
  }
}

using Ratios = std::array<std::vector<double>, 3>;  // of each form, by round

// How many times as fast as the plain loop the forms run through music.
void Speed(benchmark::State& state) {
  const ResonatorBank bank = LowestBands(state.range(0), kDefaultQ);
  const std::vector<int16_t> music = MakeMusic();
  const auto forms = ResonatorForms();
  Ratios ratios;
  std::vector<double> plain;
  while (state.KeepRunning()) {
    plain.push_back(SecondsOf(forms[0], bank, music));
    for (size_t i = 1; i < forms.size(); ++i) {
      ratios.at(i).push_back(plain.back() / SecondsOf(forms[i], bank, music));
    }
    state.SetIterationTime(plain.back());
  }
  for (size_t i = 1; i < forms.size(); ++i) {
    Report(state, "Speed/", forms[i].name, Median(ratios.at(i)));
  }
  const auto steps = static_cast<double>(state.range(0)) * static_cast<double>(kFrames);
  state.counters["ns_per_band_sample"] = 1e9 * Median(plain) / steps;
}

// How many times as long as through music the forms take through silence after a click. At the
// largest damping the tail sinks below the normal numbers within the window.
void Tail(benchmark::State& state) {
  const ResonatorBank bank = LowestBands(state.range(0), 1.0);
  const std::vector<int16_t> music = MakeMusic();
  const std::vector<int16_t> click = MakeClick();
  const auto forms = ResonatorForms();
  Ratios ratios;
  while (state.KeepRunning()) {
    for (size_t i = 0; i < forms.size(); ++i) {
      const double seconds = SecondsOf(forms[i], bank, click);
      ratios.at(i).push_back(seconds / SecondsOf(forms[i], bank, music));
      state.SetIterationTime(seconds);
    }
  }
  for (size_t i = 0; i < forms.size(); ++i) {
    Report(state, "Tail/", forms[i].name, Median(ratios.at(i)));
  }
}

BENCHMARK(Speed)
    ->Arg(1)
    ->Arg(4)
    ->Arg(8)
    ->Arg(11)
    ->Arg(16)
    ->Arg(32)
    ->Iterations(kRounds)
    ->UseManualTime();
BENCHMARK(Tail)->Arg(32)->Iterations(kRounds)->UseManualTime();

// Takes `option` out of the arguments and says whether it was there.
bool TakeOption(int& argc, char** argv, std::string_view option) {
  char** const end = std::remove(argv, argv + argc, option);
  const bool wasThere = end != argv + argc;
  argc = static_cast<int>(end - argv);
  return wasThere;
}

}  // namespace

int main(int argc, char** argv) {
  const bool hasGates = TakeOption(argc, argv, "--gates");
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  if (!hasGates) return 0;
  for (const std::string& miss : missedGates) std::cerr << miss << '\n';
  return missedGates.empty() ? 0 : 1;
}
