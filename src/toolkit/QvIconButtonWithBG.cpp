// A button with an icon on a rounded plate.
#include "toolkit/QvIconButtonWithBG.h"

#include "toolkit/Plate.h"

namespace {

constexpr ColorBGRA kDisabledPlate(0xFF373737);

}  // namespace

void QvIconButtonWithBG::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  if (PaintStrip(area, buffer)) return;
  const PlateLook look{IsEnabled(), ShowsHover(), pressed};
  DrawPlate(buffer, area.bounds, PlateColor(look, kDisabledPlate), area.clip);
  PaintIcon(area, buffer);
}

void QvIconButtonWithBG::DrawLabel(const Rect& /*rect*/, const Rect& /*clip*/,
                                   const ColorBGRA& /*color*/, ImageBuffer& /*buffer*/,
                                   int32_t /*alignment*/) {}
