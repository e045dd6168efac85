// A button that stays on, lit, until the next press.
#include "toolkit/ToggleButton.h"

#include "toolkit/Plate.h"
#include "toolkit/StockPaint.h"

namespace {

constexpr double kCornerRadius = 3.0;
constexpr ColorBGRA kDisabledOn{0xFF1F4257};
constexpr ColorBGRA kHeld{0xFF165C8B};

}  // namespace

ToggleButton::ToggleButton(ControlPane* ownerPane, const Rect& initialBounds, const Font* labelFont)
    : ButtonControl(ownerPane, initialBounds, nullptr, true, labelFont) {}

void ToggleButton::SetEnabled(bool enabled) {
  ButtonControl::SetEnabled(enabled);
  SetDirty(true);
}

void ToggleButton::SetOn(bool on) {
  if (pressed == on) return;
  pressed = on;
  SetDirty(true);
}

void ToggleButton::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  ColorBGRA plate = PlateColor({IsEnabled(), ShowsHover(), tracking}, StockColors::DisabledPlate);
  if (pressed) {
    plate = ShowsHover() ? StockColors::AccentOver : StockColors::Accent;
    if (tracking) plate = kHeld;
    if (!IsEnabled()) plate = kDisabledOn;
  }
  DrawPlate(buffer, area.bounds, plate, area.clip);
  DrawLabel(area.bounds, area.clip, PlateTextColor(pressed), buffer, labelAlignment);
  PaintFocus(area, buffer);
}

void ToggleButton::PaintFocus(const PaintArea& area, ImageBuffer& buffer) {
  if (!HasFocus()) return;
  StrokeRound({buffer, area.clip}, area.bounds, kCornerRadius, StockColors::TextOver);
}
