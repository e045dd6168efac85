// A row of cells, each a text or a picture, exactly one of which is on.
#include "toolkit/GroupControl.h"

#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kDisabledOpacity = 180;
constexpr int32_t kDisabledStripOpacity = 150;

}  // namespace

void GroupControl::AddTextCell(const std::string& text) {
  AddCell({text, nullptr});
}

void GroupControl::AddStripCell(const ImageBuffer* strip) {
  AddCell({{}, strip});
}

void GroupControl::AddCell(const Cell& cell) {
  cells.push_back(cell);
  TakeNewCell();
}

void GroupControl::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  PaintTarget target = TargetFor(buffer, area);
  if (!IsEnabled()) target.opacity = kDisabledOpacity;
  for (int32_t index = 0; index < GetCellCount(); ++index) {
    const Rect place = MovedBy(GetCellRect(index), area.bounds.left, area.bounds.top);
    if (!IsEmpty(Intersection(place, area.clip))) PaintCell(target, place, index);
  }
  buffer.DrawFrame(area.bounds, ThemeColors::Gray102, 1, target.opacity, &area.clip);
  PaintFocus(target, area.bounds, 0.0);
}

void GroupControl::PaintCell(const PaintTarget& target, const Rect& place, int32_t index) {
  const CellLook look = LookOf(index);
  ColorBGRA fill = look.over ? ThemeColors::MenuFrame : ThemeColors::Gray25;
  if (look.active) {
    fill = look.pressed || look.over ? StockColors::AccentOver : StockColors::Accent;
  }
  target.buffer.FillRect(place, fill, target.opacity, &target.clip);
  if (index > 0) {
    const Rect line = {place.left, place.top, SaturatedInt(int64_t{place.left} + 1), place.bottom};
    target.buffer.FillRect(line, ThemeColors::Gray102, target.opacity, &target.clip);
  }
  PaintStrip(target, place, index);
  DrawCaption(target, cells[static_cast<size_t>(index)].text, InsetBy(place, 1),
              TextAlignment::kCentre,
              look.active || look.over ? StockColors::TextOver : ThemeColors::Gray153);
}

void GroupControl::PaintStrip(const PaintTarget& target, const Rect& place, int32_t index) const {
  const ImageBuffer* const strip = cells[static_cast<size_t>(index)].strip;
  if (strip == nullptr) return;
  const int32_t half = strip->Width() / 2;
  const int32_t first = LookOf(index).active ? half : 0;
  const int64_t x = place.left + (WidthOf(place) - half) / 2;
  const int64_t y = place.top + (HeightOf(place) - strip->Height()) / 2;
  const Rect clip = Intersection(target.clip, place);
  strip->BlendTo(target.buffer, {first, 0, first + half, strip->Height()}, SaturatedInt(x),
                 SaturatedInt(y), IsEnabled() ? target.opacity : kDisabledStripOpacity, &clip,
                 false);
}

Rect GroupControl::GetCellRect(int32_t index) const {
  if (index < 0 || index >= GetCellCount()) return {};
  const Rect local = GetLocalBounds();
  const int64_t count = GetCellCount();
  return {SaturatedInt(int64_t{local.right} * index / count), 0,
          SaturatedInt(int64_t{local.right} * (index + 1) / count), local.bottom};
}

int32_t GroupControl::FindCell(const Point& point) const {
  const Rect local = GetLocalBounds();
  if (!Contains(local, point) || cells.empty()) return -1;
  // The cell whose rounded left edge is the last one at or before the point.
  const auto guess = static_cast<int32_t>((int64_t{point.x} + 1) * GetCellCount() / local.right);
  for (const int32_t index : {guess - 1, guess}) {
    if (Contains(GetCellRect(index), point)) return index;
  }
  return -1;
}
