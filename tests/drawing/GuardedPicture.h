// A picture of noise within watched memory, and the plain arithmetic that painting is held against.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "drawing/ImageBuffer.h"

// Rows have spare bytes behind them, and there are rows to spare above and below: all of it is in
// `bytes`, so that comparing those shows a stray write as well as a wrong pixel.
class GuardedPicture : public ImageBuffer {
 public:
  std::vector<uint8_t> bytes;

  GuardedPicture(int32_t pictureWidth, int32_t pictureHeight, uint32_t seed) {
    width = pictureWidth;
    height = pictureHeight;
    rowBytes = 4 * width + 20;
    bytes.resize(static_cast<size_t>(rowBytes * (height + 8)));
    std::minstd_rand random(seed + 1);
    for (uint8_t& byte : bytes) byte = static_cast<uint8_t>(random() >> 8U);
    // Alphas at the ends are as frequent as all the others together.
    for (size_t i = 3; i < bytes.size(); i += 4) {
      if (bytes[i] % 2 == 0) bytes[i] = bytes[i] % 4 == 0 ? 255 : 0;
    }
    pixels = bytes.data() + 4 * rowBytes;
  }
  GuardedPicture(const GuardedPicture& other) : GuardedPicture(other.width, other.height, 0) {
    bytes = other.bytes;
    pixels = bytes.data() + 4 * rowBytes;
    scale = other.scale;
    scaleAware = other.scaleAware;
  }
  ~GuardedPicture() override { pixels = nullptr; }

  bool Holds(int64_t x, int64_t y) const { return x >= 0 && x < width && y >= 0 && y < height; }
  ColorBGRA& At(int64_t x, int64_t y) { return Row(static_cast<int32_t>(y))[x]; }
};

inline bool Inside(const Rect& rect, int64_t x, int64_t y) {
  return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

// Compositing in real numbers, rounded down where the painting shifts.
inline ColorBGRA PlainComposite(ColorBGRA under, ColorBGRA over, double alpha) {
  if (alpha <= 0) return under;
  ColorBGRA result = over;
  result.alpha = static_cast<uint8_t>(alpha);
  if (alpha == 255 || under.alpha == 0) return result;
  double share = alpha;
  result.alpha = 255;
  if (under.alpha != 255) {
    const double newAlpha = std::floor((256 - alpha) * under.alpha / 256) + alpha;
    result.alpha = static_cast<uint8_t>(newAlpha);
    share = std::trunc(alpha * 255.0 / newAlpha);
  }
  const auto mix = [share](double from, double to) {
    return static_cast<uint8_t>(std::floor((to - from) * share / 256) + from);
  };
  result.blue = mix(under.blue, over.blue);
  result.green = mix(under.green, over.green);
  result.red = mix(under.red, over.red);
  return result;
}

// Rectangles near a small picture, and now and then with edges anywhere at all.
class RandomPlaces {
 public:
  explicit RandomPlaces(uint32_t seed) : random(seed) {}

  int32_t Number(int32_t low, int32_t high) {
    return std::uniform_int_distribution<int32_t>(low, high)(random);
  }
  int32_t Edge() {
    constexpr int32_t kFar[] = {INT32_MIN,  INT32_MIN + 1, -1000000007,
                                1000000007, INT32_MAX - 1, INT32_MAX};
    return Number(0, 7) == 0 ? kFar[Number(0, 5)] : Number(-5, 14);
  }
  Rect Place() { return {Edge(), Edge(), Edge(), Edge()}; }
  int32_t Opacity() {
    constexpr int32_t kEnds[] = {INT32_MIN, -1, 0, 1, 254, 255, 256, 257, INT32_MAX};
    return Number(0, 1) == 0 ? kEnds[Number(0, 8)] : Number(0, 256);
  }

 private:
  std::minstd_rand random;
};
