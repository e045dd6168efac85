// Catches wrong sampling, positions that drift, and work or writes outside of what is drawn.
#include "drawing/Stretch.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/drawing/GuardedPicture.h"

namespace {

enum class Filter { kNearest, kBox, kBilinear };

// Byte `lane` of a pixel, 0 outside the picture.
double LaneAt(const GuardedPicture& source, double x, double y, int lane) {
  if (!source.Holds(static_cast<int64_t>(x), static_cast<int64_t>(y))) return 0;
  const ColorBGRA pixel = source.Row(static_cast<int32_t>(y))[static_cast<int32_t>(x)];
  const uint8_t lanes[] = {pixel.blue, pixel.green, pixel.red, pixel.alpha};
  return lanes[lane];
}

double PlainSample(const GuardedPicture& source, Filter filter, double x, double y, double xStep,
                   double yStep, int lane) {
  const auto at = [&](double column, double row) {
    return LaneAt(source, std::trunc(column), std::trunc(row), lane);
  };
  if (filter == Filter::kNearest) return at(x, y);
  if (filter == Filter::kBox) {
    const double x1 = x + xStep / 2;
    const double y1 = y + yStep / 2;
    return std::floor((at(x, y) + at(x1, y) + at(x, y1) + at(x1, y1)) / 4);
  }
  const double left = std::floor(std::trunc(x * 256) / 256);
  const double top = std::floor(std::trunc(y * 256) / 256);
  if (!source.Holds(static_cast<int64_t>(left), static_cast<int64_t>(top))) return 0;
  const double right = std::min(left + 1, source.Width() - 1.0);
  const double bottom = std::min(top + 1, source.Height() - 1.0);
  const auto between = [](double from, double to, double part) {
    return from + std::floor((to - from) * part / 256);
  };
  const double partX = std::trunc(x * 256) - left * 256;
  return between(between(at(left, top), at(right, top), partX),
                 between(at(left, bottom), at(right, bottom), partX),
                 std::trunc(y * 256) - top * 256);
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
      uint32_t sample = 0;
      for (int lane = 0; lane < 4 && source.Holds(0, static_cast<int64_t>(y)); ++lane) {
        const double value = PlainSample(source, filter, x, y, xStep, yStep, lane);
        sample |= static_cast<uint32_t>(value) << (8 * lane);
      }
      drawn.At(column, row) = PlainCombine(drawn.At(column, row), ColorBGRA(sample), options);
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

}  // namespace
