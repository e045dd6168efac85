// What drawing a frame of the graph costs, beside clearing the same world.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "Figures.h"
#include "gradient/GradientStops.h"
#include "graph/GraphLayout.h"
#include "graph/GraphSettings.h"
#include "graph/OutputBars.h"
#include "graph/SpectrumGraph.h"

namespace {

using Levels = std::array<double, kBandCount>;

// Levels of a loud passage: a strong bass, falling toward the treble.
constexpr Levels kMusic = {0.62, 0.78, 0.91, 0.97, 0.88, 0.81, 0.84, 0.73, 0.66, 0.71, 0.58,
                           0.55, 0.61, 0.49, 0.52, 0.47, 0.44, 0.50, 0.41, 0.38, 0.43, 0.35,
                           0.31, 0.34, 0.27, 0.29, 0.22, 0.18, 0.20, 0.13, 0.09, 0.05};

constexpr Levels kFullScale = [] {
  Levels levels{};
  levels.fill(1.0);
  return levels;
}();

struct Look {
  int32_t gradient = kGradientHorizontal;
  bool quantize = false;
  float fillSegment = 0.8F;
};

constexpr Look kPlain = {};
constexpr Look kVertical = {kGradientVertical};
constexpr Look kQuantized = {kGradientHorizontal, true};

// Every way in which full bars cost something of their own. Segments without gaps between them
// leave the most to draw.
constexpr Look kAllLooks[] = {kPlain,
                              kVertical,
                              kQuantized,
                              {kGradientVertical, true},
                              {kGradientHorizontal, true, 1.0F},
                              {kGradientVertical, true, 1.0F}};

// Three ranges that stand side by side over most of the graph.
RangeGeometry ThreeRanges() {
  RangeGeometry geometry;
  geometry.bands = {BandRun{0, 10}, BandRun{12, 20}, BandRun{22, 31}};
  geometry.levels = {LevelWindow{0.3125, 0.75}, LevelWindow{0.0, 0.5}, LevelWindow{0.0, 1.0}};
  return geometry;
}

struct FrameSize {
  int32_t width = 0;
  int32_t height = 0;
};

template <typename Work>
double MicrosecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
      .count();
}

// One buffer for all frames of a size, as a host has it.
class FrameBench {
 public:
  explicit FrameBench(FrameSize frameSize)
      : size(frameSize),
        pixels(static_cast<size_t>(size.width) * static_cast<size_t>(size.height)) {
    InitRecord(colorMap);
  }

  // How many clears of the world a drawing takes: both in turn, and the medians of all turns.
  double DrawingPerClear(const Look& look, const Levels& levels) {
    std::vector<double> clears;
    std::vector<double> drawings;
    for (int turn = 0; turn < kTurns; ++turn) {
      clears.push_back(
          MicrosecondsOf([&] { std::memset(pixels.data(), 0, pixels.size() * sizeof(PF_Pixel)); }));
      drawings.push_back(MicrosecondsOf([&] { Draw(look, levels); }));
    }
    return MedianOf(drawings) / MedianOf(clears);
  }

 private:
  static constexpr int kTurns = 201;

  void Draw(const Look& look, const Levels& levels) {
    constexpr std::array<double, kRangeCount> kRaw = {0.4, 0.1, 0.9};
    constexpr std::array<double, kRangeCount> kHeld = {0.7, 0.1, 1.0};
    GraphSettings settings;
    settings.gradient = look.gradient;
    settings.quantize = look.quantize;
    settings.fillSegment = look.fillSegment;
    settings.active = {true, true, true};
    const OutputWorld world{pixels.data(), size.width, size.width, size.height};
    const GraphLayout layout = MakeGraphLayout(size.width, size.height);
    DrawSpectrumGraph(world, layout, settings, colorMap, levels, ThreeRanges());
    DrawOutputBars(world, layout, settings.active, kRaw, kHeld);
  }

  FrameSize size;
  std::vector<PF_Pixel> pixels;
  GradientRecord colorMap;
};

void Measure(FrameSize size, std::vector<Figure>& figures) {
  FrameBench bench(size);
  const auto add = [&](const char* what, double ratio, double wanted, double gate) {
    figures.push_back({"Drawing, " + std::to_string(size.height) + " rows, " + what, ratio,
                       " clears", wanted, gate});
  };
  add("music", bench.DrawingPerClear(kPlain, kMusic), 1.5, 3.0);
  add("music, vertical gradient", bench.DrawingPerClear(kVertical, kMusic), 1.5, 3.0);
  add("music, quantized", bench.DrawingPerClear(kQuantized, kMusic), 2.0, 4.0);
  double worst = 0.0;
  for (const Look& look : kAllLooks) {
    worst = std::max(worst, bench.DrawingPerClear(look, kFullScale));
  }
  add("worst of full bars", worst, 2.5, 5.0);
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<Figure> figures;
  Measure({1920, 1080}, figures);
  Measure({3840, 2160}, figures);
  return ReportFigures(figures, argc, argv);
}
