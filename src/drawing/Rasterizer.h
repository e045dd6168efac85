// Draws paths, filled or as lines, with soft edges.
#pragma once

#include <cstdint>
#include <vector>

#include "drawing/Bezier3.h"
#include "drawing/ColorBGRA.h"
#include "drawing/Crossings.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Matrix.h"
#include "drawing/PathBuilder.h"
#include "drawing/Polygon.h"
#include "drawing/PolygonScanner.h"
#include "drawing/Rect.h"
#include "drawing/SampleGrid.h"

// Its tables grow with the largest picture and stay: drawing again on such a picture allocates
// nothing.
class Rasterizer : public Bezier3 {
 public:
  // quality   1 to 4, that is 4 to 256 samples a pixel; anything else takes a single one.
  // Throws App::ExceptionInfo kOutOfMemory.
  explicit Rasterizer(int32_t quality);

  // Draws what `path` encloses by the non-zero winding rule, all its polygons together.
  //
  // opacity     0 to 256; 256 and more is opaque, below 0 nothing is drawn. A colour's own alpha
  //             plays no part.
  // alphaOnly   the coverage, reduced by the opacity, becomes the alpha of all pixels within the
  //             bounds, and colours stay as they are
  // clip        null for the whole picture
  // outBounds   may be null; becomes a rectangle around all that was changed, or all 0. At a scale
  //             it is logical and grows to whole logical pixels.
  // lineWidth   0 fills; else the outline is drawn, that wide to the right of the path's direction
  //             only. One that isn't finite draws nothing.
  // On a scale-aware picture path, clip, line width and bounds are logical.
  //
  // A path without a Close draws nothing, and neither do polygons of less than four points: a path
  // comes back to its start by itself, and its last point is taken for the first one. A coordinate
  // that is no number is 0. Points past Polygon::kMostPathPoints are left out.
  // Throws App::ExceptionInfo kOutOfMemory, also where the path has more edges than can be drawn;
  // the picture is as it was then.
  void DrawPath(PathBuilder& path, ImageBuffer& buffer, ColorBGRA color, int32_t opacity,
                bool alphaOnly, const Rect* clip, Rect* outBounds, double lineWidth);

 protected:
  void AddFlattenedPoint(const PathPoint& point) override;

 private:
  struct Paint {
    ColorBGRA color;
    int32_t opacity = 0;
    bool alphaOnly = false;
  };

  void ScanPath(PathBuilder& path, const ImageBuffer& buffer, const Matrix* matrix,
                double lineWidth);
  bool ScanCommand(uint32_t command, PathBuilder& path, const Matrix* matrix, double lineWidth);
  void PrepareTables(const ImageBuffer& buffer);
  void AddArc(const PathPoint& center, const PathPoint& end);
  void RasterizePolygon();
  Rect Composite(ImageBuffer& buffer, const Paint& paint, const Rect& clip);
  void CoverPixelRow(int32_t y, const Rect& bounds);

  SampleGrid grid;
  PathPoint current;
  int32_t sampleWidth = 0;
  int32_t sampleHeight = 0;
  Polygon polygon;
  PolygonScanner scanner;
  Rect dirtyBounds;
  CrossingRows rows;
  std::vector<uint8_t> coverageRow;
  int32_t polygonCount = 0;
};
