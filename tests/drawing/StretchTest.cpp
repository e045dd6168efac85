// Catches wrong sampling, positions that drift, and work or writes outside of what is drawn.
#include "drawing/Stretch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/drawing/GuardedPicture.h"

namespace {

using Lanes = std::array<double, 4>;

Lanes LanesAt(const GuardedPicture& picture, double x, double y) {
  if (!picture.Holds(static_cast<int64_t>(x), static_cast<int64_t>(y))) return {};
  const ColorBGRA pixel = picture.Row(static_cast<int32_t>(y))[static_cast<int32_t>(x)];
  return {double(pixel.blue), double(pixel.green), double(pixel.red), double(pixel.alpha)};
}

template <typename Mix>
ColorBGRA Mixed(const Lanes& a, const Lanes& b, const Lanes& c, const Lanes& d, Mix mix) {
  std::array<uint8_t, 4> lanes{};
  for (size_t i = 0; i < 4; ++i) lanes[i] = static_cast<uint8_t>(mix(a[i], b[i], c[i], d[i]));
  return ColorBGRA(static_cast<uint32_t>(lanes[0] | lanes[1] << 8 | lanes[2] << 16) |
                   static_cast<uint32_t>(lanes[3]) << 24);
}

enum class Filter { kNearest, kBox, kBilinear };

ColorBGRA PlainSample(const GuardedPicture& source, Filter filter, double x, double y, double xStep,
                      double yStep) {
  const double x0 = std::trunc(x);
  const double y0 = std::trunc(y);
  if (filter == Filter::kNearest) {
    const Lanes p = LanesAt(source, x0, y0);
    return Mixed(p, p, p, p, [](double a, double, double, double) { return a; });
  }
  if (filter == Filter::kBox) {
    const double x1 = std::trunc(x + xStep / 2);
    const double y1 = std::trunc(y + yStep / 2);
    return Mixed(LanesAt(source, x0, y0), LanesAt(source, x1, y0), LanesAt(source, x0, y1),
                 LanesAt(source, x1, y1), [](double a, double b, double c, double d) {
                   return std::floor((a + b + c + d) / 4);
                 });
  }
  const double left = std::floor(std::trunc(x * 256) / 256);
  const double top = std::floor(std::trunc(y * 256) / 256);
  if (!source.Holds(static_cast<int64_t>(left), static_cast<int64_t>(top))) return {};
  const double partX = std::trunc(x * 256) - left * 256;
  const double partY = std::trunc(y * 256) - top * 256;
  const double right = std::min(left + 1, source.Width() - 1.0);
  const double bottom = std::min(top + 1, source.Height() - 1.0);
  const auto between = [](double from, double to, double part) {
    return from + std::floor((to - from) * part / 256);
  };
  return Mixed(LanesAt(source, left, top), LanesAt(source, right, top),
               LanesAt(source, left, bottom), LanesAt(source, right, bottom),
               [=](double a, double b, double c, double d) {
                 return between(between(a, b, partX), between(c, d, partX), partY);
               });
}

ColorBGRA PlainCombine(ColorBGRA under, ColorBGRA over, const ImageBuffer::ScaleOptions& options) {
  const double alpha = std::floor(over.alpha * (std::clamp(options.opacity, 0, 256) / 256.0));
  if (options.blend) return PlainComposite(under, over, alpha);
  if (!options.additive) return over;
  under.blue = static_cast<uint8_t>(std::min(under.blue + over.blue, 255));
  under.green = static_cast<uint8_t>(std::min(under.green + over.green, 255));
  under.red = static_cast<uint8_t>(std::min(under.red + over.red, 255));
  under.alpha = std::max(under.alpha, static_cast<uint8_t>(alpha));
  return under;
}

// Over `drawn`, which it takes as it was before.
void PlainStretch(const GuardedPicture& source, GuardedPicture& drawn, const Rect& part,
                  const Rect& target, const Rect& clip, const ImageBuffer::ScaleOptions& options) {
  if (IsEmpty(part) || IsEmpty(target)) return;
  const double xStep = (double(part.right) - part.left) / (double(target.right) - target.left);
  const double yStep = (double(part.bottom) - part.top) / (double(target.bottom) - target.top);
  const bool shrinks = xStep > 1 || yStep > 1;
  const Filter filter = options.boxFilter && shrinks ? Filter::kBox
                        : options.bilinear           ? Filter::kBilinear
                                                     : Filter::kNearest;
  const int32_t left = std::max({target.left, clip.left, 0});
  const int32_t top = std::max({target.top, clip.top, 0});
  double y = (double(top) - target.top) * yStep + part.top;
  for (int32_t row = top; row < drawn.Height(); ++row, y += yStep) {
    double x = (double(left) - target.left) * xStep + part.left;
    for (int32_t column = left; column < drawn.Width(); ++column, x += xStep) {
      if (!Inside(target, column, row) || !Inside(clip, column, row)) continue;
      const bool rowOutside = !source.Holds(0, static_cast<int64_t>(y));
      const ColorBGRA sample =
          rowOutside ? ColorBGRA() : PlainSample(source, filter, x, y, xStep, yStep);
      drawn.At(column, row) = PlainCombine(drawn.At(column, row), sample, options);
    }
  }
}

TEST(Stretch, SamplesAndCombinesAsThePlainArithmetic) {
  RandomPlaces places(7);
  for (uint32_t round = 0; round < 8000; ++round) {
    const GuardedPicture source(8, 6, round + 100);
    GuardedPicture drawn(9, 7, round);
    GuardedPicture expected = drawn;
    const Rect part = places.Place();
    const Rect target = places.Place();
    const Rect clip = places.Number(0, 1) == 0 ? Rect{0, 0, 9, 7} : places.Place();
    ImageBuffer::ScaleOptions options;
    options.boxFilter = places.Number(0, 1) == 0;
    options.bilinear = places.Number(0, 1) == 0;
    options.blend = places.Number(0, 2) == 0;
    options.additive = places.Number(0, 1) == 0;
    options.opacity = places.Opacity();
    source.ScaleTo(drawn, part, target, &clip, options);
    PlainStretch(source, expected, part, target, clip, options);
    ASSERT_EQ(drawn.bytes, expected.bytes)
        << "round " << round << ": box " << options.boxFilter << ", bilinear " << options.bilinear
        << ", blend " << options.blend << ", additive " << options.additive;
  }
}

TEST(Stretch, PositionsAreSummedUpStepByStep) {
  const GuardedPicture source(3, 1, 1);
  GuardedPicture drawn(30, 1, 2);
  source.ScaleTo(drawn, source.Bounds(), drawn.Bounds(), nullptr, {});
  // Ten steps of 0.1 come out just below 1, twenty just above 2.
  constexpr int32_t kStarts[] = {0, 11, 20, 30};
  for (int32_t column = 0; column < 3; ++column) {
    for (int32_t x = kStarts[column]; x < kStarts[column + 1]; ++x) {
      EXPECT_EQ(drawn.Row(0)[x], source.Row(0)[column]) << x;
    }
  }
}

TEST(Stretch, TheBoxFilterDarkensAtTheEdgeOfThePicture) {
  ImageBuffer source;
  source.Allocate(3, 2, false);
  source.FillRect(source.Bounds(), ColorBGRA(0xFF80C040), 256, nullptr);
  ImageBuffer small;
  small.Allocate(2, 1, false);
  // Corners at columns 0 and 2, then 2 and 4: of the latter, half are outside.
  source.ScaleTo(small, {0, 0, 4, 2}, {0, 0, 1, 1}, nullptr, {.boxFilter = true});
  source.ScaleTo(small, {2, 0, 6, 2}, {1, 0, 2, 1}, nullptr, {.boxFilter = true});
  EXPECT_EQ(small.Row(0)[0], ColorBGRA(0xFF80C040));
  EXPECT_EQ(small.Row(0)[1], ColorBGRA(0x7F406020));
}

}  // namespace
