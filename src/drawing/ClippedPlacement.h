// Which part of a picture shows, and where, when it is placed on another one.
#pragma once

#include <cstdint>
#include <optional>

#include "drawing/Rect.h"

// A part of a picture and the point of the destination where its top left stands.
struct ClippedPlacement {
  Rect source;
  int32_t x = 0;
  int32_t y = 0;
};

// Cuts `source` by the edges of a picture of width x height, moving the point (x, y) along with the
// left and the top edge; then cuts both by `clip`, a rectangle of the destination.
//
// Coordinates may be any. Nothing is returned where nothing shows; else what is returned lies
// inside the picture and inside the clip.
std::optional<ClippedPlacement> ClipPlacement(const Rect& source, int32_t width, int32_t height,
                                              int32_t x, int32_t y, const Rect& clip);
