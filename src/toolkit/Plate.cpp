// The rounded plate that buttons with a label or an icon stand on.
#include "toolkit/Plate.h"

#include "drawing/SharedPainter.h"

namespace {

constexpr ColorBGRA kOver(0xFF6E6E6E);
constexpr ColorBGRA kPressed(0xFF787878);
constexpr ColorBGRA kNormal(0xFF525252);
constexpr ColorBGRA kTextPressed(0xFFFAFAFA);
constexpr ColorBGRA kTextNormal(0xFFC8C8C8);
constexpr double kCornerRadius = 3.0;
constexpr double kEdgeWidth = 1.0;
constexpr int32_t kOpaque = 256;

}  // namespace

ColorBGRA PlateColor(const PlateLook& look, ColorBGRA disabledColor) {
  if (!look.enabled) return disabledColor;
  if (look.over) return kOver;
  return look.pressed ? kPressed : kNormal;
}

ColorBGRA PlateTextColor(bool pressed) {
  return pressed ? kTextPressed : kTextNormal;
}

void DrawPlate(ImageBuffer& buffer, const Rect& rect, ColorBGRA color, const Rect& clip) {
  if (IsEmpty(rect)) return;
  PathBuilder& path = SharedPath();
  path.SetRoundRect(rect, kCornerRadius, true, true, true, true);
  Rasterizer& rasterizer = SharedRasterizer();
  rasterizer.DrawPath(path, buffer, color, kOpaque, false, &clip, nullptr, 0);
  // The soft pixels of the corners take the colour twice, which makes the edge solid.
  rasterizer.DrawPath(path, buffer, color, kOpaque, false, &clip, nullptr, kEdgeWidth);
}
