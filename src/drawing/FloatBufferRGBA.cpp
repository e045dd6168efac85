// Bytes to floating values and back, and resampling between the two.
#include "drawing/FloatBufferRGBA.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "platform/Truncate.h"

namespace {

constexpr float kFromByte = 0.003921569F;

FloatPixelRGBA operator*(const FloatPixelRGBA& pixel, float weight) {
  return {pixel.blue * weight, pixel.green * weight, pixel.red * weight, pixel.alpha * weight};
}

FloatPixelRGBA operator+(const FloatPixelRGBA& a, const FloatPixelRGBA& b) {
  return {a.blue + b.blue, a.green + b.green, a.red + b.red, a.alpha + b.alpha};
}

// Where a pixel of the destination lies among the pixels of the source, in one direction.
struct Taps {
  std::array<int32_t, 4> index;
  std::array<float, 4> weight;
};

Taps MakeTaps(float position, int32_t size) {
  const float whole = std::floor(position);
  const float t = position - whole;
  const float t2 = t * t;
  const float t3 = t2 * t;
  Taps taps = {{},
               {t2 - t3 / 2.0F - t / 2.0F, 1.5F * t3 - 2.5F * t2 + 1.0F,
                2.0F * t2 - 1.5F * t3 + t / 2.0F, t3 / 2.0F - t2 / 2.0F}};
  int64_t index = Truncate<int32_t>(whole) - int64_t{1};
  for (int32_t& tap : taps.index) {
    tap = static_cast<int32_t>(std::clamp<int64_t>(index++, 0, size - 1));
  }
  return taps;
}

// The weighted sum of pixelOf(0) to pixelOf(3), added from the left.
template <typename PixelOf>
FloatPixelRGBA Sum(const Taps& taps, PixelOf pixelOf) {
  return pixelOf(taps.index[0]) * taps.weight[0] + pixelOf(taps.index[1]) * taps.weight[1] +
         pixelOf(taps.index[2]) * taps.weight[2] + pixelOf(taps.index[3]) * taps.weight[3];
}

}  // namespace

void FloatBufferRGBA::ImportBGRA8(const uint8_t* bytes, int32_t importWidth, int32_t importHeight,
                                  int32_t importRowBytes) {
  const int32_t columns = std::min(Width(), importWidth);
  for (int32_t y = 0; y < std::min(Height(), importHeight); ++y) {
    const uint8_t* from = bytes + static_cast<ptrdiff_t>(y) * importRowBytes;
    FloatPixelRGBA* to = Row(y);
    const auto next = [&from] { return static_cast<float>(*from++) * kFromByte; };
    // Braces fix the order in which the four bytes are taken.
    for (int32_t x = 0; x < columns; ++x) to[x] = FloatPixelRGBA{next(), next(), next(), next()};
  }
}

void FloatBufferRGBA::ExportBGRA8(int32_t exportWidth, int32_t exportHeight, int32_t exportRowBytes,
                                  uint8_t* bytes) const {
  const int32_t columns = std::min(Width(), exportWidth);
  for (int32_t y = 0; y < std::min(Height(), exportHeight); ++y) {
    const FloatPixelRGBA* from = Row(y);
    uint8_t* to = bytes + static_cast<ptrdiff_t>(y) * exportRowBytes;
    for (int32_t x = 0; x < columns; ++x) {
      for (const float value : {from[x].blue, from[x].green, from[x].red, from[x].alpha}) {
        *to++ = Truncate<uint8_t>(value * 255.0F);
      }
    }
  }
}

void FloatBufferRGBA::Resample(const FloatBufferRGBA& source, int32_t sourceWidth,
                               int32_t sourceHeight, FloatBufferRGBA& destination, int32_t width,
                               int32_t height) {
  if (width < 1 || height < 1 || source.Width() < 1) return;
  const float xStep = static_cast<float>(sourceWidth) / static_cast<float>(width);
  const float yStep = static_cast<float>(sourceHeight) / static_cast<float>(height);
  const int32_t columns = std::min(width, destination.Width());
  for (int32_t j = 0; j < std::min(height, destination.Height()); ++j) {
    const Taps rows = MakeTaps(static_cast<float>(j) * yStep, source.Height());
    FloatPixelRGBA* const to = destination.Row(j);
    for (int32_t i = 0; i < columns; ++i) {
      const Taps inRow = MakeTaps(static_cast<float>(i) * xStep, source.Width());
      to[i] = Sum(rows, [&](int32_t y) {
        const FloatPixelRGBA* const row = source.Row(y);
        return Sum(inRow, [row](int32_t x) { return row[x]; });
      });
    }
  }
}
