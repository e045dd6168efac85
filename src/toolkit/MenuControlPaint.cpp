// What a menu looks like.
#include "drawing/Labeler.h"
#include "drawing/SharedPainter.h"
#include "toolkit/MenuControl.h"
#include "toolkit/PaintArea.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr double kCornerRadius = 3.0;
constexpr double kFrameWidth = 1.0;
constexpr int32_t kOpaque = 256;
constexpr int32_t kFillOpacity = 235;
constexpr ColorBGRA kHoverFill{0xFF134060};
constexpr int32_t kHoverFillOpacity = 200;
constexpr const char* kCheckMark = "4";  // in FontSymbols

void PaintSeparator(ImageBuffer& buffer, const Rect& row, const Rect& clip, ColorBGRA color) {
  const int64_t middle = row.top + (int64_t{row.bottom} - row.top) / 2;
  const Rect line = {row.left, SaturatedInt(middle - 1), row.right, SaturatedInt(middle)};
  buffer.FillRect(line, color, kOpaque, &clip);
}

}  // namespace

void MenuControl::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  if (items.empty()) return;
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  PathBuilder& path = SharedPath();
  path.SetRoundRect(area.bounds, kCornerRadius, true, true, true, true);
  SharedRasterizer().DrawPath(path, buffer, ThemeColors::MenuFill, kFillOpacity, false, &area.clip,
                              nullptr, 0.0);
  SharedRasterizer().DrawPath(path, buffer, ThemeColors::MenuFrame, kOpaque, false, &area.clip,
                              nullptr, kFrameWidth);
  PaintItems(rect, buffer, position);
}

void MenuControl::PaintItems(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  for (int32_t index = FirstRowBelow(rect.top); index < GetItemCount(); ++index) {
    const Rect row = GetRowRect(index);
    if (row.top >= rect.bottom) return;
    if (IsEmpty(Intersection(row, rect))) continue;
    PaintItem(index, buffer, MovedBy(row, area.bounds.left, area.bounds.top), area.clip);
  }
}

void MenuControl::PaintItem(int32_t index, ImageBuffer& buffer, const Rect& rect,
                            const Rect& clip) {
  const MenuItem* const item = GetItem(index);
  if (item == nullptr) return;
  PaintTextRow(index, buffer, rect, clip, {2 * item->padX, kCheckMark});
}

void MenuControl::PaintTextRow(int32_t index, ImageBuffer& buffer, const Rect& rect,
                               const Rect& clip, const RowLook& look) const {
  const MenuItem* const item = GetItem(index);
  if (item == nullptr) return;
  const MenuRowColors& colors = RowColors(index);
  if (colors.back.alpha != 0) buffer.FillRect(rect, colors.back, kOpaque, &clip);
  if (index == hoverIndex && item->enabled && IsEnabled()) {
    buffer.FillRect(rect, kHoverFill, kHoverFillOpacity, &clip);
  }
  if (item->IsSeparator()) {
    PaintSeparator(buffer, rect, clip, disabledColors.text);
    return;
  }

  Labeler& labeler = SharedLabeler();
  TextStyle style;
  style.color = colors.text;
  style.clip = &clip;
  const int32_t textLeft = SaturatedInt(int64_t{rect.left} + look.indent);
  const Rect text = {textLeft, rect.top, rect.right, rect.bottom};
  labeler.SetFont(item->font);
  labeler.DrawStringInRect(buffer, item->label.c_str(), text, TextAlignment::kLeft, style);
  if (!item->marked) return;
  const Rect mark = {rect.left, rect.top, textLeft, rect.bottom};
  labeler.SetFont(&FontSymbols());
  labeler.DrawStringInRect(buffer, look.mark, mark, TextAlignment::kCentre, style);
}

const MenuRowColors& MenuControl::RowColors(int32_t index) const {
  const MenuItem* const item = GetItem(index);
  if (!IsEnabled() || item == nullptr || !item->enabled) return disabledColors;
  if (index == hoverIndex) return hoverColors;
  return index == selectedIndex ? selectedColors : normalColors;
}
