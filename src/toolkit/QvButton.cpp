// A button with a label on a rounded plate.
#include "toolkit/QvButton.h"

#include "toolkit/Plate.h"

namespace {

constexpr ColorBGRA kDisabledPlate(0xFF313131);
constexpr int32_t kCentred = 1;

}  // namespace

void QvButton::SetEnabled(bool enabled) {
  SetStateTree(enabled ? kStateNormal : kStateDisabled);
  SetDirty(true);
  RedrawIfParametersChanged();
}

void QvButton::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  if (PaintStrip(area, buffer)) return;
  const PlateLook look{IsEnabled(), ShowsHover(), pressed};
  DrawPlate(buffer, area.bounds, PlateColor(look, kDisabledPlate), area.clip);
  DrawLabel(area.bounds, area.clip, PlateTextColor(pressed), buffer, kCentred);
}
