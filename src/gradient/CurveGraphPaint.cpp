// What the graph looks like.
#include <algorithm>

#include "drawing/SharedPainter.h"
#include "gradient/CurveChain.h"
#include "gradient/CurveGraph.h"
#include "gradient/CurvePoints.h"
#include "gradient/RampColor.h"
#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr ColorBGRA kGround = Gray(36);
constexpr ColorBGRA kShade = Gray(20);
constexpr ColorBGRA kOutline = Gray(59);
constexpr ColorBGRA kLine = Gray(200);
constexpr ColorBGRA kFill = Gray(96);
constexpr ColorBGRA kMark = Gray(148);
constexpr ColorBGRA kSelectedMark(0xFF1C73AE);
constexpr double kCornerRadius = 2.0;
constexpr double kFilled = 0.0;
constexpr double kOutlineWidth = 1.0;
constexpr double kLineWidth = 1.5;
constexpr double kTolerance = 0.25;  // of the line's chords, logical pixels
constexpr int32_t kDepthLimit = 12;
constexpr int32_t kMarkReach = 3;
constexpr int32_t kOpacity = 255;
constexpr int32_t kDisabledOpacity = 64;

void Draw(ImageBuffer& buffer, ColorBGRA color, int32_t opacity, const Rect& clip,
          double lineWidth) {
  SharedRasterizer().DrawPath(SharedPath(), buffer, color, opacity, false, &clip, nullptr,
                              lineWidth);
}

// Where a point of the line is drawn. A stroke lies below what it follows from left to right;
// raised by half its width, it shows at the top and at the bottom of the graph.
PathPoint OnStroke(const PathPoint& point, const Rect& bounds) {
  return {point.x + bounds.left, point.y + bounds.top - kLineWidth / 2};
}

// Held to the graph as the samples are: where the chain swings out, the line runs along the edge.
class LineOfChain : public Bezier3 {
 public:
  LineOfChain(PathBuilder& linePath, const Rect& graphBounds, int32_t graphHeight)
      : path(linePath), bounds(graphBounds), height(graphHeight) {}

  void Add(const CurveChain& chain) {
    path.MoveTo(Held(chain.segments[0][0]));
    for (size_t i = 0; i < chain.count; ++i) Flatten(chain.segments[i], kTolerance, kDepthLimit);
  }

 protected:
  void AddFlattenedPoint(const PathPoint& point) override { path.LineTo(Held(point)); }

 private:
  PathPoint Held(const PathPoint& point) const {
    return OnStroke({point.x, std::clamp(point.y, 0.0, static_cast<double>(height))}, bounds);
  }

  PathBuilder& path;
  Rect bounds;
  int32_t height;
};

// Dark outside and light inside, so that the ground seems to lie lower than the panel.
void DrawGround(const PaintArea& area, ImageBuffer& buffer) {
  SharedPath().SetRoundRect(area.bounds, kCornerRadius, true, true, true, true);
  Draw(buffer, kGround, kOpacity, area.clip, kFilled);
  Draw(buffer, kOutline, kOpacity, area.clip, 2 * kOutlineWidth);
  Draw(buffer, kShade, kOpacity, area.clip, kOutlineWidth);
}

}  // namespace

void CurveGraph::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const int32_t shownOpacity = IsEnabled() ? kOpacity : kDisabledOpacity;
  DrawGround(area, buffer);
  if (curve == nullptr) return;
  if (freehand) {
    PaintSamples(area, shownOpacity, buffer);
  } else {
    PaintCurve(area, shownOpacity, buffer);
    PaintPoints(area, shownOpacity, buffer);
  }
}

// A stroke of one column for each sample, from the bottom up to its value; one of 0.0 shows as
// well.
void CurveGraph::PaintSamples(const PaintArea& area, int32_t shownOpacity,
                              ImageBuffer& buffer) const {
  const int32_t height = Height();
  for (int32_t i = 0; i < CurveSampleCount; ++i) {
    const int32_t top =
        std::min(Truncate<int32_t>(RowOfValue(curve->samples[i], height)), height - 1);
    const auto fill = [&](int32_t bottom, ColorBGRA color) {
      const Rect part = MovedBy(Rect{i, top, i + 1, bottom}, area.bounds.left, area.bounds.top);
      buffer.FillRect(part, color, shownOpacity, &area.clip);
    };
    fill(height, kFill);
    fill(top + 1, kLine);
  }
}

void CurveGraph::PaintCurve(const PaintArea& area, int32_t shownOpacity,
                            ImageBuffer& buffer) const {
  const CurveChain chain = BuildCurveChain(*curve, Height());
  if (chain.count == 0) return;
  PathBuilder& path = SharedPath();
  path.Clear();
  LineOfChain(path, area.bounds, Height()).Add(chain);
  path.ClosePath();
  Draw(buffer, kLine, shownOpacity, area.clip, kLineWidth);
}

void CurveGraph::PaintPoints(const PaintArea& area, int32_t shownOpacity,
                             ImageBuffer& buffer) const {
  const int32_t count = CountPoints(*curve);
  for (int32_t i = 0; i < count; ++i) {
    const auto x = Truncate<int32_t>(curve->pointX[i]);
    const auto y = Truncate<int32_t>(RowOfValue(curve->pointY[i], Height()));
    const Rect mark = {-kMarkReach, -kMarkReach, kMarkReach + 1, kMarkReach + 1};
    const Rect place = MovedBy(mark, int64_t{area.bounds.left} + x, int64_t{area.bounds.top} + y);
    SharedPath().SetRoundRect(place, kCornerRadius, true, true, true, true);
    Draw(buffer, i == selectedPoint ? kSelectedMark : kMark, shownOpacity, area.clip, kFilled);
    Draw(buffer, i == selectedPoint ? kLine : kShade, shownOpacity, area.clip, kOutlineWidth);
  }
}
