// What a caption costs to draw and to measure, beside a translucent fill of the same area.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "drawing/ImageBuffer.h"
#include "drawing/Labeler.h"

namespace {

constexpr const char* kCaption = "Randomize";
constexpr int32_t kRepeats = 100;  // one caption is too short for the clock

double MedianOf(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

template <typename Work>
double MicrosecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  for (int32_t i = 0; i < kRepeats; ++i) {
    work();
    benchmark::ClobberMemory();
  }
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
             .count() /
         kRepeats;
}

// Each kind of work in turn on the same picture, at the scale of the screen.
void DrawCaption(benchmark::State& state) {
  const auto scale = static_cast<float>(state.range(0));
  ImageBuffer buffer;
  buffer.Allocate(100 * static_cast<int32_t>(scale), 24 * static_cast<int32_t>(scale), false);
  buffer.SetScale(scale);
  buffer.SetScaleAware(true);
  SetScreenScale(scale);
  Labeler& labeler = SharedLabeler();
  labeler.SetFont(&FontDefault());
  TextStyle style;
  style.color = ColorBGRA(0xFFD2D2D2);
  const Rect area = {4, 4, 4 + labeler.MeasureString(kCaption, 0), 4 + labeler.GetLineHeight()};
  buffer.FillRect({0, 0, 100, 24}, ColorBGRA(0xFF282828), 256, nullptr);
  std::vector<double> fills;
  std::vector<double> measures;
  std::vector<double> texts;
  while (state.KeepRunning()) {
    fills.push_back(
        MicrosecondsOf([&] { buffer.FillRect(area, ColorBGRA(0xFF3C3C3C), 128, nullptr); }));
    measures.push_back(
        MicrosecondsOf([&] { benchmark::DoNotOptimize(labeler.MeasureString(kCaption, 0)); }));
    texts.push_back(MicrosecondsOf([&] {
      labeler.DrawString(buffer, kCaption, area.left, area.top, TextAlignment::kLeft, style);
    }));
    state.SetIterationTime(texts.back() * kRepeats * 1e-6);
  }
  const double fill = MedianOf(fills);
  const double text = MedianOf(texts);
  state.counters["fill_us"] = fill;
  state.counters["measure_us"] = MedianOf(measures);
  state.counters["text_us"] = text;
  state.counters["text_per_fill"] = text / fill;
}

BENCHMARK(DrawCaption)->Arg(1)->Arg(2)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
