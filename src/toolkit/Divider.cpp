// A line between groups of controls.
#include "toolkit/Divider.h"

#include "toolkit/PaintArea.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/StockPaint.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kOpaque = 256;
constexpr int32_t kDisabledOpacity = 120;

}  // namespace

void Divider::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

void Divider::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const int32_t strength = IsEnabled() ? kOpaque : kDisabledOpacity;
  const bool lies = WidthOf(bounds) > HeightOf(bounds);
  // A dark line with a light one beside it, which makes it look cut in.
  Rect dark = area.bounds;
  Rect light = area.bounds;
  if (lies) {
    dark.top = SaturatedInt(area.bounds.top + HeightOf(area.bounds) / 2 - 1);
    dark.bottom = light.top = SaturatedInt(int64_t{dark.top} + 1);
    light.bottom = SaturatedInt(int64_t{light.top} + 1);
  } else {
    dark.left = SaturatedInt(area.bounds.left + WidthOf(area.bounds) / 2 - 1);
    dark.right = light.left = SaturatedInt(int64_t{dark.left} + 1);
    light.right = SaturatedInt(int64_t{light.left} + 1);
  }
  buffer.FillRect(dark, ThemeColors::MenuFill, strength, &area.clip);
  buffer.FillRect(light, ThemeColors::Gray76, strength, &area.clip);
}

bool Divider::ContainsLocalPoint(const Point& /*point*/) const {
  return false;
}
