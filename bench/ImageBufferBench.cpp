// What drawing on a picture costs, beside memset and memcpy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "drawing/ImageBuffer.h"

namespace {

// A whole panel at scale 2.
constexpr int32_t kWidth = 612;
constexpr int32_t kHeight = 260;
constexpr size_t kBytes = size_t{kWidth} * kHeight * 4;
constexpr ColorBGRA kColor(0xFF336699);

struct Pictures {
  ImageBuffer source;
  ImageBuffer target;

  explicit Pictures(uint8_t sourceAlpha) {
    Paint(source, sourceAlpha);
    Paint(target, 255);
  }

  static void Paint(ImageBuffer& picture, uint8_t alpha) {
    picture.Allocate(kWidth, kHeight, false);
    for (int32_t y = 0; y < kHeight; ++y) {
      for (int32_t x = 0; x < kWidth; ++x) {
        picture.Row(y)[x] = ColorBGRA(static_cast<uint32_t>(x * 0x10305 + y * 0x20701));
        picture.Row(y)[x].alpha = alpha;
      }
    }
  }
};

// Runs draw(source, target) and counts the bytes of a whole picture each time.
template <typename Draw>
void Measure(benchmark::State& state, uint8_t sourceAlpha, Draw draw) {
  Pictures pictures(sourceAlpha);
  for (auto _ : state) {
    draw(pictures.source, pictures.target);
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kBytes));
}

void Memset(benchmark::State& state) {
  int value = 0;
  Measure(state, 255, [&value](const ImageBuffer&, ImageBuffer& target) {
    std::memset(static_cast<void*>(target.Row(0)), ++value, kBytes);
  });
}
BENCHMARK(Memset);

void FillRect(benchmark::State& state, int32_t opacity) {
  Measure(state, 255, [opacity](const ImageBuffer&, ImageBuffer& target) {
    target.FillRect(target.Bounds(), kColor, opacity, nullptr);
  });
}
BENCHMARK_CAPTURE(FillRect, opaque, 256);
BENCHMARK_CAPTURE(FillRect, half, 128);

void Memcpy(benchmark::State& state) {
  Measure(state, 255, [](const ImageBuffer& source, ImageBuffer& target) {
    std::memcpy(static_cast<void*>(target.Row(0)), source.Row(0), kBytes);
  });
}
BENCHMARK(Memcpy);

void CopyTo(benchmark::State& state, int32_t opacity) {
  Measure(state, 255, [opacity](const ImageBuffer& source, ImageBuffer& target) {
    source.CopyTo(target, source.Bounds(), 0, 0, opacity, nullptr);
  });
}
BENCHMARK_CAPTURE(CopyTo, opaque, 256);
BENCHMARK_CAPTURE(CopyTo, half, 128);

void BlendTo(benchmark::State& state, int32_t opacity, uint8_t sourceAlpha) {
  Measure(state, sourceAlpha, [opacity](const ImageBuffer& source, ImageBuffer& target) {
    source.BlendTo(target, source.Bounds(), 0, 0, opacity, nullptr, true);
  });
}
BENCHMARK_CAPTURE(BlendTo, opaque, 256, 255);
BENCHMARK_CAPTURE(BlendTo, half, 256, 128);
BENCHMARK_CAPTURE(BlendTo, transparent, 256, 0);

void ScaleTo(benchmark::State& state, bool boxFilter, bool bilinear) {
  const ImageBuffer::ScaleOptions options = {
      .boxFilter = boxFilter, .bilinear = bilinear, .blend = true};
  Measure(state, 128, [&options](const ImageBuffer& source, ImageBuffer& target) {
    // A little smaller than the source, so that the box filter is in use.
    source.ScaleTo(target, source.Bounds(), {0, 0, kWidth - 1, kHeight}, nullptr, options);
  });
}
BENCHMARK_CAPTURE(ScaleTo, nearest, false, false);
BENCHMARK_CAPTURE(ScaleTo, box, true, false);
BENCHMARK_CAPTURE(ScaleTo, bilinear, false, true);

}  // namespace
