// The seam to what paints: a picture that drawing calls land in.
#pragma once

#include <memory>

#include "workbench/drawbot/Canvas.h"

// Which part of the surface the picture shows, in surface coordinates, and at what size.
//
// width, height   0 and more
// zoom            pixels of the picture for each surface coordinate, at least 1
struct CanvasArea {
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = 0;
  int32_t height = 0;
  int32_t zoom = 1;
};

class PictureCanvas : public Canvas {
 public:
  // What has been drawn so far. Throws JobFailure where the painter has given up.
  virtual Picture Copy() const = 0;
};

// Whether this program was built with a painter.
bool CanPaintPictures();

// A picture full of `ground`; null where there is no painter. Throws JobFailure where it would be
// too large: more than 32767 pixels wide or high, or more than memory holds.
std::unique_ptr<PictureCanvas> NewPictureCanvas(const CanvasArea& area, PF_Pixel8 ground);
