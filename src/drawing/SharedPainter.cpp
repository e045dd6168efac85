// Where the shared rasterizer and path live.
#include "drawing/SharedPainter.h"

Rasterizer& SharedRasterizer() {
  constexpr int32_t kQuality = 3;
  static Rasterizer rasterizer(kQuality);
  return rasterizer;
}

PathBuilder& SharedPath() {
  static PathBuilder path;
  return path;
}
