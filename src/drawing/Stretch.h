// Scaling a part of a picture onto a rectangle of another one.
#pragma once

#include <cstdint>

#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"

// Physical pixels of the destination. Wide, since the place of a stretched picture may reach beyond
// what a Rect holds while its beginning is in sight.
struct StretchTarget {
  int64_t left = 0;
  int64_t top = 0;
  int64_t right = 0;
  int64_t bottom = 0;
};

// What ImageBuffer::ScaleTo does; the cost goes with the pixels that are drawn.
void Stretch(const ImageBuffer& picture, ImageBuffer& destination, const Rect& source,
             const StretchTarget& target, const Rect* clip,
             const ImageBuffer::ScaleOptions& options);
