// A row of tabs, one of which is the active one.
#include "toolkit/TabControl.h"

#include <algorithm>

#include "drawing/SharedPainter.h"
#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int64_t kBothPads = 20;  // beside a caption
constexpr double kCornerRadius = 2.0;
constexpr double kOutlineWidth = 1.0;
constexpr ColorBGRA kActiveFill{0xFF4A4A4A};
constexpr ColorBGRA kFill{0xFF262626};
constexpr ColorBGRA kPressedFill{0xFF3A3A3A};
constexpr ColorBGRA kOverFill{0xFF343434};

// Round at the top, square where the tab stands on its page.
void DrawTabShape(const PaintTarget& target, const Rect& place, ColorBGRA fill, ColorBGRA outline) {
  const double radius = std::min({kCornerRadius, static_cast<double>(WidthOf(place)) / 2.0,
                                  static_cast<double>(HeightOf(place)) / 2.0});
  SharedPath().SetRoundRect(place, radius, true, true, false, false);
  Rasterizer& rasterizer = SharedRasterizer();
  rasterizer.DrawPath(SharedPath(), target.buffer, fill, target.opacity, false, &target.clip,
                      nullptr, 0.0);
  rasterizer.DrawPath(SharedPath(), target.buffer, outline, target.opacity, false, &target.clip,
                      nullptr, kOutlineWidth);
}

}  // namespace

void TabControl::AddTab(const std::string& caption) {
  tabs.push_back(caption);
  TakeNewCell();
}

void TabControl::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  const PaintTarget target = TargetFor(buffer, area);
  const std::vector<Rect> places = LayOutTabs();
  for (int32_t index = 0; index < GetCellCount(); ++index) {
    const Rect place =
        MovedBy(places[static_cast<size_t>(index)], area.bounds.left, area.bounds.top);
    if (!IsEmpty(Intersection(place, area.clip))) PaintTab(target, place, index);
  }
  const Rect base = {area.bounds.left, SaturatedInt(int64_t{area.bounds.bottom} - 1),
                     area.bounds.right, area.bounds.bottom};
  buffer.FillRect(base, kActiveFill, target.opacity, &area.clip);
}

void TabControl::PaintTab(const PaintTarget& target, const Rect& place, int32_t index) {
  const CellLook look = LookOf(index);
  ColorBGRA fill = look.over ? kOverFill : kFill;
  if (look.active) fill = look.pressed ? kPressedFill : kActiveFill;
  DrawTabShape(target, place, fill, look.active ? ThemeColors::Gray102 : ThemeColors::MenuFrame);
  const bool bright = look.over || look.active;
  DrawCaption(target, tabs[static_cast<size_t>(index)], InsetBy(place, 1), TextAlignment::kCentre,
              bright ? StockColors::TextOver : ThemeColors::Gray153);
  if (look.active) PaintFocus(target, InsetBy(place, 1), kCornerRadius);
}

std::vector<Rect> TabControl::LayOutTabs() const {
  const Rect local = GetLocalBounds();
  std::vector<int64_t> ends;
  ends.reserve(tabs.size());
  int64_t total = 0;
  for (const std::string& caption : tabs) {
    total += int64_t{MeasureCaption(caption)} + kBothPads;
    ends.push_back(total);
  }
  const int64_t room = std::max(local.right, 0);
  std::vector<Rect> places;
  places.reserve(tabs.size());
  int32_t left = 0;
  for (const int64_t end : ends) {
    // Ends are scaled and not widths, so that tabs leave no gap. A share in double keeps its order.
    const double share = static_cast<double>(end) / static_cast<double>(total);
    const auto right = static_cast<int32_t>(
        total <= room ? end : Truncate<int64_t>(share * static_cast<double>(room)));
    places.push_back({left, 0, right, local.bottom});
    left = right;
  }
  return places;
}

int32_t TabControl::FindCell(const Point& point) const {
  const std::vector<Rect> places = LayOutTabs();
  const auto found = std::find_if(places.begin(), places.end(),
                                  [&point](const Rect& place) { return Contains(place, point); });
  return found == places.end() ? -1 : static_cast<int32_t>(found - places.begin());
}
