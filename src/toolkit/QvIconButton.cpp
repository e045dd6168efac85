// A button that is a bare icon, with a frame while it is selected.
#include "toolkit/QvIconButton.h"

#include "drawing/SharedPainter.h"

namespace {

constexpr ColorBGRA kSelectedFrame(0xFF1C73AE);
constexpr int32_t kSelectedOpacity = 175;
constexpr double kFrameWidth = 1.0;

}  // namespace

void QvIconButton::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  PaintIcon(area, buffer);
  if ((state & kStateSelected) == 0) return;
  SharedPath().SetRoundRect(area.bounds, 0, true, true, true, true);
  SharedRasterizer().DrawPath(SharedPath(), buffer, kSelectedFrame, kSelectedOpacity, false,
                              &area.clip, nullptr, kFrameWidth);
}
