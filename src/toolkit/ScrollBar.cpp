// A thumb on a track that moves a view over its content.
#include "toolkit/ScrollBar.h"

#include <algorithm>

#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kSmallestSide = 30;
constexpr int32_t kThumbInset = 2;  // across the bar

}  // namespace

ScrollBar::ScrollBar(ControlPane* ownerPane, const Rect& initialBounds)
    : StockControl(ownerPane, initialBounds) {
  minWidth = kSmallestSide;
  minHeight = kSmallestSide;
}

void ScrollBar::SetExtent(int32_t newContent, int32_t newView) {
  newContent = std::max(newContent, 0);
  newView = std::max(newView, 0);
  if (content == newContent && view == newView) return;
  content = newContent;
  view = newView;
  scrollPosition = std::min(scrollPosition, MostPosition());
  SetDirty(true);
}

void ScrollBar::SetPosition(int32_t newPosition) {
  const int32_t wanted = std::clamp(newPosition, 0, MostPosition());
  if (scrollPosition == wanted) return;
  scrollPosition = wanted;
  SetDirty(true);
}

void ScrollBar::OnMouseDown(WindowContext* /*context*/, const Point& point) {
  pressed = true;
  const int32_t place = AlongTrack(point);
  const ThumbTrack track = Track();
  const int32_t start = track.ThumbStart(Fraction());
  dragging = track.IsOnThumb(Fraction(), place);
  grabOffset = int64_t{place} - start;
  if (!dragging) {
    const int64_t step = place < start ? -int64_t{view} : int64_t{view};
    if (!ScrollTo(scrollPosition + step)) return;
  }
  RedrawAndTellPress();
}

void ScrollBar::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  if (!dragging) return;
  const double fraction = Track().FractionAt(int64_t{AlongTrack(point)} - grabOffset);
  ScrollTo(Truncate<int64_t>(fraction * MostPosition() + 0.5));
}

void ScrollBar::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  pressed = false;
  dragging = false;
  RedrawAndTellRelease();
}

void ScrollBar::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  const PaintTarget target = TargetFor(buffer, area);
  const bool across = IsHorizontal();
  trackStrip.Draw(target, area.bounds, across, ThemeColors::MenuFill);
  if (MostPosition() == 0) return;

  const ThumbTrack track = Track();
  const int32_t start = track.ThumbStart(Fraction());
  Rect thumb = InsetBy(area.bounds, kThumbInset);
  if (across) {
    thumb.left = SaturatedInt(int64_t{area.bounds.left} + start);
    thumb.right = SaturatedInt(int64_t{thumb.left} + track.thumb);
  } else {
    thumb.top = SaturatedInt(int64_t{area.bounds.top} + start);
    thumb.bottom = SaturatedInt(int64_t{thumb.top} + track.thumb);
  }
  thumbStrip.Draw(target, thumb, across, PlateColor(LookWhile(pressed), ThemeColors::Gray76));
  PaintFocus(target, thumb, ScrollStrip::kCornerRadius);
}

bool ScrollBar::IsHorizontal() const {
  return WidthOf(bounds) > HeightOf(bounds);
}

ThumbTrack ScrollBar::Track() const {
  const Rect local = GetLocalBounds();
  return MakeScrollTrack(IsHorizontal() ? local.right : local.bottom, content, view);
}

double ScrollBar::Fraction() const {
  const int32_t most = MostPosition();
  return most > 0 ? static_cast<double>(scrollPosition) / most : 0.0;
}

bool ScrollBar::ScrollTo(int64_t wanted) {
  const int32_t held = SaturatedInt(std::clamp<int64_t>(wanted, 0, MostPosition()));
  if (held == scrollPosition) return true;
  scrollPosition = held;
  return RedrawAndTellListener();
}
