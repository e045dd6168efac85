// Scaling by stepping through the source, one sample for each pixel that is drawn.
#include "drawing/Stretch.h"

#include <algorithm>

#include "drawing/Compositing.h"
#include "platform/Truncate.h"

namespace {

// The pixel of a picture, or 0 outside it.
ColorBGRA PixelAt(const ImageBuffer& picture, int64_t x, int64_t y) {
  if (x < 0 || x >= picture.Width() || y < 0 || y >= picture.Height()) return {};
  return picture.Row(static_cast<int32_t>(y))[x];
}

// One colour out of four, each channel by itself.
template <typename Mix>
ColorBGRA MixChannels(ColorBGRA p00, ColorBGRA p10, ColorBGRA p01, ColorBGRA p11, Mix mix) {
  ColorBGRA mixed;
  mixed.blue = static_cast<uint8_t>(mix(p00.blue, p10.blue, p01.blue, p11.blue));
  mixed.green = static_cast<uint8_t>(mix(p00.green, p10.green, p01.green, p11.green));
  mixed.red = static_cast<uint8_t>(mix(p00.red, p10.red, p01.red, p11.red));
  mixed.alpha = static_cast<uint8_t>(mix(p00.alpha, p10.alpha, p01.alpha, p11.alpha));
  return mixed;
}

// The mean of the four corners of a box. A corner outside the picture counts as 0 and still takes
// its quarter, so that edges darken.
ColorBGRA SampleBox(const ImageBuffer& picture, int32_t x0, int32_t y0, int32_t x1, int32_t y1) {
  return MixChannels(PixelAt(picture, x0, y0), PixelAt(picture, x1, y0), PixelAt(picture, x0, y1),
                     PixelAt(picture, x1, y1), [](int32_t a, int32_t b, int32_t c, int32_t d) {
                       return (a + b + c + d) >> 2;
                     });
}

// Between four neighbours in steps of 1/256; the last column and row are their own neighbours.
ColorBGRA SampleBilinear(const ImageBuffer& picture, double x, double y) {
  const auto fixedX = Truncate<int64_t>(x * 256);
  const auto fixedY = Truncate<int64_t>(y * 256);
  const int64_t x0 = fixedX >> 8;
  const int64_t y0 = fixedY >> 8;
  if (x0 < 0 || x0 >= picture.Width() || y0 < 0 || y0 >= picture.Height()) return {};
  const int64_t x1 = std::min<int64_t>(x0 + 1, picture.Width() - 1);
  const int64_t y1 = std::min<int64_t>(y0 + 1, picture.Height() - 1);
  const auto partX = static_cast<int32_t>(fixedX & 255);
  const auto partY = static_cast<int32_t>(fixedY & 255);
  return MixChannels(PixelAt(picture, x0, y0), PixelAt(picture, x1, y0), PixelAt(picture, x0, y1),
                     PixelAt(picture, x1, y1),
                     [partX, partY](int32_t p00, int32_t p10, int32_t p01, int32_t p11) {
                       const int32_t top = p00 + (((p10 - p00) * partX) >> 8);
                       const int32_t bottom = p01 + (((p11 - p01) * partX) >> 8);
                       return top + (((bottom - top) * partY) >> 8);
                     });
}

enum class Mode { kStore, kBlend, kAdd };

template <Mode kMode>
void CombinePixel(ColorBGRA& pixel, ColorBGRA sample, int32_t opacity) {
  if constexpr (kMode == Mode::kStore) {
    pixel = sample;
  } else if constexpr (kMode == Mode::kBlend) {
    CompositePixel(pixel, sample, (sample.alpha * opacity) >> 8);
  } else {
    const auto add = [](int32_t a, int32_t b) {
      return static_cast<uint8_t>(std::min(a + b, 255));
    };
    pixel.blue = add(pixel.blue, sample.blue);
    pixel.green = add(pixel.green, sample.green);
    pixel.red = add(pixel.red, sample.red);
    pixel.alpha = std::max(pixel.alpha, static_cast<uint8_t>((sample.alpha * opacity) >> 8));
  }
}

// Where the samples of the area that is drawn lie in the source.
struct SampleGrid {
  Rect area;
  double startX = 0.0;
  double startY = 0.0;
  double xStep = 0.0;
  double yStep = 0.0;
};

SampleGrid MakeGrid(const Rect& source, const StretchTarget& target, const Rect& clip) {
  SampleGrid grid;
  const auto cut = [](int64_t edge, int32_t low, int32_t high) {
    return static_cast<int32_t>(std::clamp<int64_t>(edge, low, high));
  };
  if (IsEmpty(clip)) return grid;
  grid.area = {cut(target.left, clip.left, clip.right), cut(target.top, clip.top, clip.bottom),
               cut(target.right, clip.left, clip.right), cut(target.bottom, clip.top, clip.bottom)};
  if (IsEmpty(grid.area)) return grid;
  const auto ratio = [](int64_t sourceSize, int64_t targetSize) {
    return static_cast<double>(sourceSize) / static_cast<double>(targetSize);
  };
  grid.xStep = ratio(int64_t{source.right} - source.left, target.right - target.left);
  grid.yStep = ratio(int64_t{source.bottom} - source.top, target.bottom - target.top);
  grid.startX = static_cast<double>(grid.area.left - target.left) * grid.xStep + source.left;
  grid.startY = static_cast<double>(grid.area.top - target.top) * grid.yStep + source.top;
  return grid;
}

// sample(x, y)   the colour of the source there
// Positions are summed up step by step: a multiplication would round otherwise.
template <Mode kMode, typename Sample>
void StretchRows(ImageBuffer& destination, const SampleGrid& grid, int32_t sourceHeight,
                 int32_t opacity, Sample sample) {
  double y = grid.startY;
  for (int32_t rowIndex = grid.area.top; rowIndex < grid.area.bottom; ++rowIndex) {
    ColorBGRA* const row = destination.Row(rowIndex);
    const auto wholeY = Truncate<int32_t>(y);
    if (wholeY >= 0 && wholeY < sourceHeight) {
      double x = grid.startX;
      for (int32_t column = grid.area.left; column < grid.area.right; ++column) {
        CombinePixel<kMode>(row[column], sample(x, y), opacity);
        x += grid.xStep;
      }
    } else if (kMode == Mode::kStore) {
      std::fill(row + grid.area.left, row + grid.area.right, ColorBGRA{});
    }
    y += grid.yStep;
  }
}

template <Mode kMode>
void StretchInMode(const ImageBuffer& picture, ImageBuffer& destination, const SampleGrid& grid,
                   const ImageBuffer::ScaleOptions& options) {
  const int32_t opacity = std::clamp(options.opacity, 0, 256);
  const auto stretchWith = [&](auto sample) {
    StretchRows<kMode>(destination, grid, picture.Height(), opacity, sample);
  };
  if (options.boxFilter && (grid.xStep > 1.0 || grid.yStep > 1.0)) {
    stretchWith([&](double x, double y) {
      return SampleBox(picture, Truncate<int32_t>(x), Truncate<int32_t>(y),
                       Truncate<int32_t>(x + grid.xStep / 2),
                       Truncate<int32_t>(y + grid.yStep / 2));
    });
  } else if (options.bilinear) {
    stretchWith([&](double x, double y) { return SampleBilinear(picture, x, y); });
  } else {
    stretchWith([&](double x, double y) {
      return PixelAt(picture, Truncate<int32_t>(x), Truncate<int32_t>(y));
    });
  }
}

}  // namespace

void Stretch(const ImageBuffer& picture, ImageBuffer& destination, const Rect& source,
             const StretchTarget& target, const Rect* clip,
             const ImageBuffer::ScaleOptions& options) {
  if (picture.Row(0) == nullptr || IsEmpty(source)) return;
  const SampleGrid grid = MakeGrid(source, target, destination.ClippedBounds(clip));
  if (IsEmpty(grid.area)) return;
  if (options.blend) {
    StretchInMode<Mode::kBlend>(picture, destination, grid, options);
  } else if (options.additive) {
    StretchInMode<Mode::kAdd>(picture, destination, grid, options);
  } else {
    StretchInMode<Mode::kStore>(picture, destination, grid, options);
  }
}
