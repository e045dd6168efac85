// What the strip looks like.
#include "drawing/SharedPainter.h"
#include "gradient/GradientPanel.h"
#include "gradient/GradientStrip.h"
#include "gradient/RampColor.h"
#include "gradient/RampColumn.h"
#include "gradient/RampIndex.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kBarLeft = 2;
constexpr int32_t kBarRight = 207;
constexpr int32_t kRampLeft = 4;      // where entry 0 and the marker of position 0 stand
constexpr int32_t kRampInset = 2;     // of the ramp's columns from the bar's top and bottom
constexpr int32_t kMarkerOffset = 2;  // of the markers' tips from the bar's bottom
constexpr double kLineWidth = 1.0;
constexpr double kFilled = 0.0;
constexpr double kBarRadius = 1.0;
constexpr ColorBGRA kTip = Gray(148);
constexpr ColorBGRA kOutline = Gray(59);
constexpr int32_t kOpacity = 255;
constexpr int32_t kDisabledOpacity = 30;
constexpr int32_t kOutlineOpacity = 256;
constexpr int32_t kDisabledOutlineOpacity = 150;

void Draw(ImageBuffer& buffer, ColorBGRA color, int32_t opacity, const Rect& clip,
          double lineWidth) {
  SharedRasterizer().DrawPath(SharedPath(), buffer, color, opacity, false, &clip, nullptr,
                              lineWidth);
}

// The marker of a stop, its tip at a point of the buffer.
void DrawMarker(ImageBuffer& buffer, const Point& tip, ColorBGRA color, int32_t opacity,
                const Rect& clip) {
  const double x = tip.x;
  const double y = tip.y;
  SharedPath().SetRoundTriangle({x, y}, {x - 3, y + 2}, {x + 3, y + 2}, 0.0);
  Draw(buffer, kTip, opacity, clip, kFilled);
  SharedPath().SetRoundRect(MovedBy(Rect{-4, 3, 4, 11}, tip.x, tip.y), 0.0, true, true, true, true);
  Draw(buffer, color, opacity, clip, kFilled);
  Draw(buffer, kOutline, opacity, clip, kLineWidth);
}

}  // namespace

void GradientStrip::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const int32_t shownOpacity = IsEnabled() ? kOpacity : kDisabledOpacity;
  const Rect bar =
      MovedBy(Rect{kBarLeft, 0, kBarRight, barHeight}, area.bounds.left, area.bounds.top);
  buffer.FillRect(area.bounds, panel->GetBackgroundColor(), shownOpacity, &area.clip);
  buffer.FillRect(bar, ThemeColors::Black, shownOpacity, &area.clip);
  if (const GradientView* const view = panel->GetGradient()) {
    PaintRamp(*view, area, shownOpacity, buffer);
    PaintMarkers(*view, area, shownOpacity, buffer);
  }
  SharedPath().SetRoundRect(bar, kBarRadius, true, true, true, true);
  Draw(buffer, kOutline, IsEnabled() ? kOutlineOpacity : kDisabledOutlineOpacity, area.clip,
       kLineWidth);
}

void GradientStrip::PaintRamp(const GradientView& view, const PaintArea& area, int32_t shownOpacity,
                              ImageBuffer& buffer) const {
  for (int32_t i = 0; i < GradientRampSize; ++i) {
    const Rect column = {kRampLeft + i, kRampInset, kRampLeft + i + 1, barHeight - kRampInset};
    FillColumn(buffer, MovedBy(column, area.bounds.left, area.bounds.top),
               PixelOf(view.colorMapRed[i], view.colorMapGreen[i], view.colorMapBlue[i]),
               shownOpacity, area.clip);
  }
}

void GradientStrip::PaintMarkers(const GradientView& view, const PaintArea& area,
                                 int32_t shownOpacity, ImageBuffer& buffer) const {
  const int32_t stopCount = CountStops(view);
  for (int32_t i = 0; i < stopCount; ++i) {
    const Point tip = {kRampLeft + HoldToRamp(view.stopPosition[i]), barHeight + kMarkerOffset};
    DrawMarker(buffer, MovedBy(tip, area.bounds.left, area.bounds.top),
               PixelOf(view.stopRed[i], view.stopGreen[i], view.stopBlue[i]), shownOpacity,
               area.clip);
  }
}
