// What a filled plate costs, beside an opaque fill and a clearing of the same area.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "drawing/ImageBuffer.h"
#include "drawing/SharedPainter.h"

namespace {

constexpr Rect kPlate = {0, 0, 306, 130};
constexpr ColorBGRA kColor(0xFF3C3C3C);

double MedianOf(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

template <typename Work>
double MicrosecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  benchmark::ClobberMemory();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
      .count();
}

// A plate as large as a panel at scale 2, each kind of work in turn on the same picture.
void DrawPlate(benchmark::State& state, double radius, int32_t opacity, double lineWidth) {
  ImageBuffer buffer;
  buffer.Allocate(kPlate.right * 2, kPlate.bottom * 2, false);
  buffer.SetScale(2.0F);
  buffer.SetScaleAware(true);
  const size_t bytes =
      static_cast<size_t>(buffer.RowBytes()) * static_cast<size_t>(buffer.Height());
  SharedPath().SetRoundRect(kPlate, radius, true, true, true, true);
  std::vector<double> clears;
  std::vector<double> fills;
  std::vector<double> paths;
  while (state.KeepRunning()) {
    clears.push_back(MicrosecondsOf(
        [&] { std::memset(reinterpret_cast<uint8_t*>(buffer.Row(0)), 0x3C, bytes); }));
    fills.push_back(MicrosecondsOf([&] { buffer.FillRect(kPlate, kColor, opacity, nullptr); }));
    paths.push_back(MicrosecondsOf([&] {
      SharedRasterizer().DrawPath(SharedPath(), buffer, kColor, opacity, false, nullptr, nullptr,
                                  lineWidth);
    }));
    state.SetIterationTime(paths.back() * 1e-6);
  }
  const double path = MedianOf(paths);
  const double fill = MedianOf(fills);
  state.counters["memset_us"] = MedianOf(clears);
  state.counters["fill_rect_us"] = fill;
  state.counters["path_us"] = path;
  state.counters["path_per_fill"] = path / fill;
}

constexpr int32_t kOpaque = 256;

BENCHMARK_CAPTURE(DrawPlate, round, 3.0, kOpaque, 0)->UseManualTime();
BENCHMARK_CAPTURE(DrawPlate, round_translucent, 3.0, 128, 0)->UseManualTime();
BENCHMARK_CAPTURE(DrawPlate, square, 0.0, kOpaque, 0)->UseManualTime();
BENCHMARK_CAPTURE(DrawPlate, frame, 3.0, kOpaque, 1.0)->UseManualTime();

}  // namespace
