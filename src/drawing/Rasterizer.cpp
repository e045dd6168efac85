// From paths to pixels: scanning the commands, collecting crossings, painting what they enclose.
#include "drawing/Rasterizer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <new>

#include "drawing/Arc.h"
#include "drawing/Coverage.h"
#include "drawing/CoveragePaint.h"
#include "drawing/Stroke.h"
#include "engine/ExceptionInfo.h"
#include "platform/Truncate.h"

namespace {

constexpr double kCurveTolerance = 0.5;
constexpr int32_t kCurveDepth = 10;

Rect UnionOf(const Rect& a, const Rect& b) {
  if (IsEmpty(a)) return b;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

// Whole pixels in samples, as far as samples can be counted.
int32_t ToSamples(int32_t pixels, const SampleGrid& grid) {
  return std::min(pixels, std::numeric_limits<int32_t>::max() >> grid.shift) << grid.shift;
}

// The pixels that the extent touches, in samples, cut to the picture.
Rect PixelBounds(const Polygon::Extent& extent, const SampleGrid& grid, int32_t width,
                 int32_t height) {
  const auto mask = int64_t{grid.mask};
  return {static_cast<int32_t>(std::clamp<int64_t>(extent.left & ~mask, 0, width)),
          static_cast<int32_t>(std::clamp<int64_t>(extent.top & ~mask, 0, height)),
          static_cast<int32_t>(std::clamp<int64_t>((extent.right + mask) & ~mask, 0, width)),
          static_cast<int32_t>(std::clamp<int64_t>((extent.bottom + mask) & ~mask, 0, height))};
}

// Outward to whole logical pixels, so that nothing that was changed is left out.
Rect ToLogical(const Rect& physical, double scale) {
  return {Truncate<int32_t>(std::floor(physical.left / scale)),
          Truncate<int32_t>(std::floor(physical.top / scale)),
          Truncate<int32_t>(std::ceil(physical.right / scale)),
          Truncate<int32_t>(std::ceil(physical.bottom / scale))};
}

size_t PointsOf(uint32_t command) {
  switch (command) {
    case kMoveTo:
    case kLineTo:
      return 1;
    case kArcTo:
      return 2;
    case kCubicTo:
      return 3;
    default:
      return 0;
  }
}

}  // namespace

Rasterizer::Rasterizer(int32_t quality) : grid(MakeSampleGrid(quality)) {}

void Rasterizer::DrawPath(PathBuilder& path, ImageBuffer& buffer, ColorBGRA color, int32_t opacity,
                          bool alphaOnly, const Rect* clip, Rect* outBounds, double lineWidth) {
  if (outBounds != nullptr) *outBounds = {};
  if (opacity < 0 || !std::isfinite(lineWidth)) return;
  const bool converts = buffer.ConvertsCoordinates();
  const double scale = buffer.Scale();
  const Matrix scaling = Matrix::Scaling(scale);
  ScanPath(path, buffer, converts ? &scaling : nullptr, converts ? lineWidth * scale : lineWidth);
  if (polygonCount < 1) return;
  const Rect physicalClip = clip != nullptr ? buffer.ToPhysical(*clip) : buffer.Bounds();
  const Rect touched = Composite(buffer, {color, opacity, alphaOnly}, physicalClip);
  if (outBounds == nullptr) return;
  *outBounds = converts ? ToLogical(touched, scale) : touched;
}

void Rasterizer::AddFlattenedPoint(const PathPoint& point) {
  polygon.Add(point.x, point.y, grid.samples);
}

void Rasterizer::ScanPath(PathBuilder& path, const ImageBuffer& buffer, const Matrix* matrix,
                          double lineWidth) {
  PrepareTables(buffer);
  dirtyBounds = {};
  polygonCount = 0;
  current = {};
  polygon.BeginPath();
  scanner.BeginPath();
  path.Rewind();
  uint32_t command = kEnd;
  while (path.ReadCommand(command) && ScanCommand(command, path, matrix, lineWidth)) {
  }
}

// False where the path ends here.
bool Rasterizer::ScanCommand(uint32_t command, PathBuilder& path, const Matrix* matrix,
                             double lineWidth) {
  std::array<PathPoint, 3> points;
  for (size_t i = 0; i < PointsOf(command); ++i) {
    if (!path.ReadPoint(points[i])) return false;
    if (matrix != nullptr) points[i] = matrix->Transform(points[i]);
  }
  switch (command) {
    case kMoveTo:
      polygon.Clear();
      [[fallthrough]];
    case kLineTo:
      current = points[0];
      AddFlattenedPoint(current);
      return true;
    case kCubicTo:
      if (!polygon.IsPathFull()) {
        Flatten({current, points[0], points[1], points[2]}, kCurveTolerance, kCurveDepth);
      }
      current = points[2];
      return true;
    case kArcTo:
      AddArc(points[0], points[1]);
      return true;
    case kClose:
      scanner.TakeEdges(polygon.Count());
      if (lineWidth != 0) BuildStroke(polygon, lineWidth, grid.samples);
      RasterizePolygon();
      return true;
    default:
      return false;
  }
}

void Rasterizer::PrepareTables(const ImageBuffer& buffer) {
  sampleWidth = ToSamples(buffer.Width(), grid);
  sampleHeight = ToSamples(buffer.Height(), grid);
  const size_t coverageSize = static_cast<size_t>(buffer.Width()) + 1;
  try {
    if (coverageRow.size() < coverageSize) coverageRow.resize(coverageSize);
  } catch (const std::bad_alloc&) {
    throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  }
  rows.Reset(static_cast<size_t>(sampleHeight));
}

// An arc without length leaves the pen where it is.
void Rasterizer::AddArc(const PathPoint& center, const PathPoint& end) {
  const Arc arc = MakeArc(current, center, end);
  if (arc.steps == 0) return;
  for (int32_t step = 1; step <= arc.steps && !polygon.IsPathFull(); ++step) {
    AddFlattenedPoint(PointOfArc(arc, step));
  }
  current = end;
}

void Rasterizer::RasterizePolygon() {
  constexpr size_t kFewestPoints = 4;
  if (polygon.Count() < kFewestPoints) return;
  polygon.CloseOnFirst();
  const Rect bounds = PixelBounds(polygon.GetExtent(), grid, sampleWidth, sampleHeight);
  if (IsEmpty(bounds)) return;
  dirtyBounds = UnionOf(dirtyBounds, bounds);
  ++polygonCount;
  scanner.AddPolygon(polygon, bounds, rows);
}

// Returns the pixels that were gone over.
Rect Rasterizer::Composite(ImageBuffer& buffer, const Paint& paint, const Rect& clip) {
  const Rect dirty = {dirtyBounds.left >> grid.shift, dirtyBounds.top >> grid.shift,
                      dirtyBounds.right >> grid.shift, dirtyBounds.bottom >> grid.shift};
  const Rect bounds = Intersection(dirty, clip);
  if (IsEmpty(bounds)) return {};
  for (int32_t y = bounds.top; y < bounds.bottom; ++y) {
    CoverPixelRow(y, bounds);
    const CoverageRun run = {coverageRow.data() + bounds.left, buffer.Row(y) + bounds.left,
                             bounds.right - bounds.left};
    if (paint.alphaOnly) {
      StoreCoverage(run, paint.opacity);
    } else {
      PaintCoverage(run, paint.color, paint.opacity);
    }
  }
  return bounds;
}

void Rasterizer::CoverPixelRow(int32_t y, const Rect& bounds) {
  std::fill(coverageRow.begin() + bounds.left, coverageRow.begin() + bounds.right, uint8_t{0});
  const int32_t firstRow = y << grid.shift;
  for (int32_t row = firstRow; row < firstRow + grid.samples; ++row) {
    CoverRow(coverageRow.data(), rows.Sorted(row), bounds.left << grid.shift,
             bounds.right << grid.shift, grid);
  }
}
