// Drawing one picture on another: with its alpha, without it, and stretched.
#include <algorithm>
#include <cstddef>
#include <cstring>

#include "drawing/ClippedPlacement.h"
#include "drawing/Compositing.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Stretch.h"

namespace {

bool NeedsStretching(const ImageBuffer& source, const ImageBuffer& destination) {
  return destination.IsScaleAware() && destination.Scale() != source.Scale();
}

// Draws at the destination's scale: place and clip are logical, the source rectangle is the
// source's own but takes as much room as if it were logical.
void StretchOnto(const ImageBuffer& picture, ImageBuffer& destination, const Rect& source,
                 int32_t x, int32_t y, const Rect* clip, const ImageBuffer::ScaleOptions& options) {
  const Rect room = destination.ToPhysical(source);
  const int64_t left = destination.ToPhysical(x);
  const int64_t top = destination.ToPhysical(y);
  const StretchTarget target = {left, top, left + room.right - room.left,
                                top + room.bottom - room.top};
  const Rect physicalClip = destination.ClippedBoundsOfLogical(clip);
  Stretch(picture, destination, source, target, &physicalClip, options);
}

// Calls drawRow(pixels of the destination, pixels of the source, their number) for each row.
template <typename DrawRow>
void DrawRows(const ImageBuffer& picture, ImageBuffer& destination, const ClippedPlacement& place,
              DrawRow drawRow) {
  const int32_t count = place.source.right - place.source.left;
  const int32_t rows = place.source.bottom - place.source.top;
  for (int32_t row = 0; row < rows; ++row) {
    drawRow(destination.Row(place.y + row) + place.x,
            picture.Row(place.source.top + row) + place.source.left, count);
  }
}

}  // namespace

void ImageBuffer::BlendTo(ImageBuffer& destination, const Rect& source, int32_t x, int32_t y,
                          int32_t opacity, const Rect* clip, bool physical) const {
  if (NeedsStretching(*this, destination)) {
    StretchOnto(*this, destination, source, x, y, clip, {.blend = true, .opacity = opacity});
    return;
  }
  if (!physical && destination.ConvertsCoordinates()) {
    const Rect physicalClip = destination.ClippedBoundsOfLogical(clip);
    BlendTo(destination, destination.ToPhysical(source), destination.ToPhysical(x),
            destination.ToPhysical(y), opacity, &physicalClip, true);
    return;
  }
  const auto place = ClipPlacement(source, width, height, x, y, destination.ClippedBounds(clip));
  if (!place) return;
  const int32_t share = std::clamp(opacity, 0, 256);
  DrawRows(*this, destination, *place,
           [share](ColorBGRA* to, const ColorBGRA* from, int32_t count) {
             for (int32_t i = 0; i < count; ++i)
               CompositePixel(to[i], from[i], (from[i].alpha * share) >> 8);
           });
}

void ImageBuffer::CopyTo(ImageBuffer& destination, const Rect& source, int32_t x, int32_t y,
                         int32_t opacity, const Rect* clip) const {
  if (NeedsStretching(*this, destination)) {
    StretchOnto(*this, destination, source, x, y, clip, {.opacity = opacity});
    return;
  }
  const auto place = ClipPlacement(source, width, height, x, y, destination.ClippedBounds(clip));
  if (!place) return;
  if (opacity >= 256) {
    // A row may overlap itself where a picture is copied onto itself.
    DrawRows(*this, destination, *place, [](ColorBGRA* to, const ColorBGRA* from, int32_t count) {
      std::memmove(to, from, static_cast<size_t>(count) * sizeof(ColorBGRA));
    });
    return;
  }
  const int32_t alpha = std::max(opacity, 0);
  DrawRows(*this, destination, *place,
           [alpha](ColorBGRA* to, const ColorBGRA* from, int32_t count) {
             for (int32_t i = 0; i < count; ++i) CompositePixel(to[i], from[i], alpha);
           });
}

void ImageBuffer::ScaleTo(ImageBuffer& destination, const Rect& source, const Rect& target,
                          const Rect* clip, const ScaleOptions& options) const {
  Stretch(*this, destination, source, {target.left, target.top, target.right, target.bottom}, clip,
          options);
}
