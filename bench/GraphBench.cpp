// What drawing a frame of the graph costs, beside clearing the same world.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "gradient/GradientStops.h"
#include "graph/GraphLayout.h"
#include "graph/GraphSettings.h"
#include "graph/OutputBars.h"
#include "graph/SpectrumGraph.h"

namespace {

// Levels of a loud passage: a strong bass, falling toward the treble.
constexpr std::array<double, kBandCount> kMusic = {
    0.62, 0.78, 0.91, 0.97, 0.88, 0.81, 0.84, 0.73, 0.66, 0.71, 0.58, 0.55, 0.61, 0.49, 0.52, 0.47,
    0.44, 0.50, 0.41, 0.38, 0.43, 0.35, 0.31, 0.34, 0.27, 0.29, 0.22, 0.18, 0.20, 0.13, 0.09, 0.05};

constexpr std::array<double, kBandCount> kFullScale = [] {
  std::array<double, kBandCount> levels{};
  levels.fill(1.0);
  return levels;
}();

GraphSettings AllElements(int32_t gradient, bool quantize) {
  GraphSettings settings;
  settings.gradient = gradient;
  settings.quantize = quantize;
  settings.active = {true, true, true};
  return settings;
}

// Three ranges that stand side by side over most of the graph.
RangeGeometry ThreeRanges() {
  RangeGeometry geometry;
  geometry.bands = {BandRun{0, 10}, BandRun{12, 20}, BandRun{22, 31}};
  geometry.levels = {LevelWindow{0.3125, 0.75}, LevelWindow{0.0, 0.5}, LevelWindow{0.0, 1.0}};
  return geometry;
}

double MedianOf(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

template <typename Work>
double MicrosecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
      .count();
}

// Clears and draws one world in turn, as a host does, and compares the medians.
void DrawFrames(benchmark::State& state, const GraphSettings& settings,
                const std::array<double, kBandCount>& levels) {
  const auto width = static_cast<int32_t>(state.range(0));
  const auto height = static_cast<int32_t>(state.range(1));
  std::vector<PF_Pixel> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
  const OutputWorld world{pixels.data(), width, width, height};
  const GraphLayout layout = MakeGraphLayout(width, height);
  const RangeGeometry geometry = ThreeRanges();
  GradientRecord colorMap;
  InitRecord(colorMap);
  constexpr std::array<double, kRangeCount> kRaw = {0.4, 0.1, 0.9};
  constexpr std::array<double, kRangeCount> kHeld = {0.7, 0.1, 1.0};
  std::vector<double> clears;
  std::vector<double> drawings;
  while (state.KeepRunning()) {
    clears.push_back(MicrosecondsOf([&] {
      std::memset(pixels.data(), 0, pixels.size() * sizeof(PF_Pixel));
      benchmark::ClobberMemory();
    }));
    drawings.push_back(MicrosecondsOf([&] {
      DrawSpectrumGraph(world, layout, settings, colorMap, levels, geometry);
      DrawOutputBars(world, layout, settings.active, kRaw, kHeld);
      benchmark::ClobberMemory();
    }));
    state.SetIterationTime(drawings.back() * 1e-6);
  }
  const double clear = MedianOf(clears);
  const double drawing = MedianOf(drawings);
  state.counters["clear_us"] = clear;
  state.counters["drawing_us"] = drawing;
  state.counters["drawing_per_clear"] = drawing / clear;
}

void Sizes(benchmark::internal::Benchmark* bench) {
  bench->Args({1920, 1080})->Args({3840, 2160})->UseManualTime()->Unit(benchmark::kMicrosecond);
}

const GraphSettings kPlain = AllElements(kGradientHorizontal, false);
const GraphSettings kVertical = AllElements(kGradientVertical, false);
const GraphSettings kQuantized = AllElements(kGradientHorizontal, true);
const GraphSettings kQuantizedVertical = AllElements(kGradientVertical, true);

BENCHMARK_CAPTURE(DrawFrames, music, kPlain, kMusic)->Apply(Sizes);
BENCHMARK_CAPTURE(DrawFrames, music_vertical, kVertical, kMusic)->Apply(Sizes);
BENCHMARK_CAPTURE(DrawFrames, music_quantized, kQuantized, kMusic)->Apply(Sizes);
BENCHMARK_CAPTURE(DrawFrames, full_scale, kPlain, kFullScale)->Apply(Sizes);
BENCHMARK_CAPTURE(DrawFrames, full_scale_vertical, kVertical, kFullScale)->Apply(Sizes);
BENCHMARK_CAPTURE(DrawFrames, full_scale_quantized, kQuantizedVertical, kFullScale)->Apply(Sizes);

}  // namespace
