// The page of fills, frames, blends and scalings.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "drawing/FloatBufferRGBA.h"
#include "tools/specimens/Pages.h"

namespace {

constexpr ColorBGRA kGrey(0xFF232323);
constexpr ColorBGRA kOrange(0xFFF0A030);
constexpr ColorBGRA kBlue(0xFF4090E0);

// Squares of 8 in two greys, so that what lies above shows how much it lets through.
void DrawChecks(ImageBuffer& page, const Rect& area) {
  for (int32_t y = area.top; y < area.bottom; y += 8) {
    for (int32_t x = area.left; x < area.right; x += 8) {
      const bool light = ((x - area.left) / 8 + (y - area.top) / 8) % 2 == 0;
      page.FillRect({x, y, x + 8, y + 8}, ColorBGRA(light ? 0xFF606060 : 0xFF404040), 256, &area);
    }
  }
}

// A disc that fades out to its rim, at the scale given; its colour turns with the direction.
void PaintDisc(ImageBuffer& disc, int32_t size, float scale) {
  const auto physicalSize = static_cast<int32_t>(static_cast<float>(size) * scale);
  disc.Allocate(physicalSize, physicalSize, true);
  disc.SetScale(scale);
  const double radius = physicalSize / 2.0;
  for (int32_t y = 0; y < physicalSize; ++y) {
    for (int32_t x = 0; x < physicalSize; ++x) {
      const double across = (x + 0.5 - radius) / radius;
      const double down = (y + 0.5 - radius) / radius;
      const double inward = std::clamp(2.0 - 2.0 * std::hypot(across, down), 0.0, 1.0);
      ColorBGRA& pixel = disc.Row(y)[x];
      pixel.red = static_cast<uint8_t>(std::lround(127.5 + 127.0 * std::clamp(across, -1.0, 1.0)));
      pixel.green = static_cast<uint8_t>(std::lround(127.5 - 127.0 * std::clamp(down, -1.0, 1.0)));
      pixel.blue = 96;
      pixel.alpha = static_cast<uint8_t>(std::lround(255.0 * inward));
    }
  }
}

// 16 x 16 pixels of lines, one pixel wide, and a translucent corner: shows what a filter does.
void PaintPattern(ImageBuffer& pattern) {
  pattern.Allocate(16, 16, false);
  pattern.FillRect(pattern.Bounds(), ColorBGRA(0xFF305060), 256, nullptr);
  pattern.DrawFrame(pattern.Bounds(), ColorBGRA(0xFFFFFFFF), 1, 256, nullptr);
  for (int32_t i = 2; i < 14; i += 2) {
    pattern.FillRect({i, 2, i + 1, 8}, kOrange, 256, nullptr);
    pattern.FillRect({i, i, i + 2, i + 2}, ColorBGRA(0xFFFFFFFF), 256, nullptr);
  }
  pattern.FillRect({10, 10, 15, 15}, ColorBGRA(0x40FF4040), 256, nullptr);
}

// Two bands that overlap, in steps of 1/16 from nothing to opaque.
void DrawSteps(ImageBuffer& picture, int32_t left) {
  for (int32_t i = 0; i < 17; ++i) {
    const int32_t x = left + i * 17;
    picture.FillRect({x, 20, x + 17, 48}, kOrange, i * 16, nullptr);
    picture.FillRect({x, 36, x + 17, 68}, kBlue, i * 16, nullptr);
  }
}

// On the left straight on checks; on the right on a clear layer that is then laid on checks. Where
// only one band stands, both must look alike.
void DrawFills(ImageBuffer& page) {
  DrawChecks(page, {20, 16, 316, 72});
  DrawSteps(page, 22);
  DrawChecks(page, {324, 16, 620, 72});
  ImageBuffer layer;
  layer.Allocate(page.Width(), page.Height(), false);
  layer.SetScale(page.Scale());
  layer.SetScaleAware(true);
  DrawSteps(layer, 326);
  layer.BlendTo(page, {0, 0, 640, 400}, 0, 0, 256, nullptr, false);
}

void DrawFrames(ImageBuffer& page) {
  DrawChecks(page, {20, 84, 620, 132});
  for (int32_t i = 0; i < 6; ++i) {
    page.DrawFrame({26 + i * 49, 90, 68 + i * 49, 126}, kOrange, i + 1, 256, nullptr);
    page.DrawFrame({326 + i * 49, 90, 368 + i * 49, 126}, kBlue, i + 1, 128, nullptr);
  }
}

// Discs of fading opacity, above with their alpha, below without; the last of each row is cut by a
// clip. Copying takes physical pixels where the scales are the same; where they differ, it takes
// logical ones and has no opacity.
void DrawDiscRows(ImageBuffer& page, const ImageBuffer& disc, int32_t left) {
  const bool stretched = disc.Scale() != page.Scale();
  const auto place = [&](auto logical) { return stretched ? logical : page.ToPhysical(logical); };
  for (int32_t i = 0; i < 5; ++i) {
    const int32_t x = left + i * 58;
    const int32_t opacity = i < 4 ? 256 - i * 64 : 256;
    const Rect clip = i < 4 ? Rect{0, 0, 640, 400} : Rect{x + 6, 144, x + 40, 264};
    const Rect physicalClip = place(clip);
    disc.BlendTo(page, {0, 0, 52, 52}, x, 148, opacity, &clip, false);
    disc.CopyTo(page, disc.Bounds(), place(x), place(208), opacity, &physicalClip);
  }
}

// On the left of the page's own scale, on the right of scale 1.
void DrawDiscs(ImageBuffer& page) {
  DrawChecks(page, {20, 144, 620, 264});
  ImageBuffer disc;
  PaintDisc(disc, 52, page.Scale());
  DrawDiscRows(page, disc, 24);
  PaintDisc(disc, 52, 1.0F);
  DrawDiscRows(page, disc, 324);
}

// Rings that grow finer outward, to a pixel and a half apart: what a filter can't hold turns into
// other rings.
void PaintRings(ImageBuffer& rings) {
  rings.Allocate(128, 128, false);
  for (int32_t y = 0; y < 128; ++y) {
    for (int32_t x = 0; x < 128; ++x) {
      const double radius = std::hypot(x - 63.5, y - 63.5);
      const long shade = std::lround(127.5 + 127.0 * std::cos(radius * radius / 40.0));
      rings.Row(y)[x] = ColorBGRA(0xFF000000U + static_cast<uint32_t>(shade) * 0x10101U);
    }
  }
}

// Brings `pattern` to a size by way of floating values.
void Resample(const ImageBuffer& pattern, ImageBuffer& resampled, int32_t size) {
  FloatBufferRGBA from;
  FloatBufferRGBA to;
  resampled.Allocate(size, size, false);
  if (!from.Allocate(pattern.Width(), pattern.Height(), true) || !to.Allocate(size, size, true)) {
    return;
  }
  from.ImportBGRA8(reinterpret_cast<const uint8_t*>(pattern.Row(0)), pattern.Width(),
                   pattern.Height(), pattern.RowBytes());
  FloatBufferRGBA::Resample(from, pattern.Width(), pattern.Height(), to, size, size);
  to.ExportBGRA8(size, size, resampled.RowBytes(), reinterpret_cast<uint8_t*>(resampled.Row(0)));
}

// Enlarged: nearest, bilinear, added, cubic; then reduced: above nearest, below with the box
// filter.
void DrawScalings(ImageBuffer& page) {
  DrawChecks(page, {20, 276, 620, 388});
  ImageBuffer pattern;
  PaintPattern(pattern);
  const auto stretch = [&](const Rect& target, const ImageBuffer::ScaleOptions& options) {
    pattern.ScaleTo(page, pattern.Bounds(), page.ToPhysical(target), nullptr, options);
  };
  stretch({24, 284, 120, 380}, {.blend = true});
  stretch({132, 284, 228, 380}, {.bilinear = true, .blend = true});
  stretch({240, 284, 336, 380}, {.bilinear = true, .additive = true});
  ImageBuffer cubic;
  Resample(pattern, cubic, page.ToPhysical(96));
  cubic.SetScale(page.Scale());
  cubic.BlendTo(page, {0, 0, 96, 96}, 348, 284, 256, nullptr, false);
  ImageBuffer rings;
  PaintRings(rings);
  int32_t x = 456;
  for (const int32_t size : {48, 40, 32, 24}) {
    for (const bool box : {false, true}) {
      const int32_t y = box ? 334 : 282;
      rings.ScaleTo(page, rings.Bounds(), page.ToPhysical(Rect{x, y, x + size, y + size}), nullptr,
                    {.boxFilter = box});
    }
    x += size + 4;
  }
}

}  // namespace

void DrawBlendPage(ImageBuffer& page) {
  page.FillRect({0, 0, 640, 400}, kGrey, 256, nullptr);
  DrawFills(page);
  DrawFrames(page);
  DrawDiscs(page);
  DrawScalings(page);
}
