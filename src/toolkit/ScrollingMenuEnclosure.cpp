// A popup with a list of text rows that scrolls where it is higher than it may be.
#include "toolkit/ScrollingMenuEnclosure.h"

#include <algorithm>

#include "toolkit/PaintArea.h"
#include "toolkit/PopupBase.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/StockPaint.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kBarWidth = 12;
constexpr int32_t kFrame = 1;
constexpr int64_t kBothFrames = 2;
constexpr int32_t kUsualMostHeight = 160;
constexpr int32_t kLeastHeight = 36;  // a row and the list's margins
constexpr double kCornerRadius = 3.0;
constexpr int32_t kFillOpacity = 235;

}  // namespace

ScrollingMenuEnclosure::ScrollingMenuEnclosure(ControlPane* ownerPane, const Font* rowFont)
    : PopupEnclosure(ownerPane, Rect{}), mostHeight(kUsualMostHeight) {
  auto* const pane = new ScrollPane(this, Rect{}, kBarWidth, 0);
  scrollPane = pane;
  AddChild(pane, true);
  auto* const list = new TextMenuSub(pane->GetView(), Rect{}, rowFont);
  sub = list;
  pane->SetContent(list);
}

void ScrollingMenuEnclosure::SetMostHeight(int32_t height) {
  mostHeight = std::max(height, kLeastHeight);
}

void ScrollingMenuEnclosure::Rebuild() {
  if (!sub || !scrollPane) return;
  GetSub()->RebuildItems(nullptr);
  const Rect list = GetSub()->GetLocalBounds();
  const int64_t wantedHeight = int64_t{list.bottom} + kBothFrames;
  const int64_t height = std::min<int64_t>(wantedHeight, mostHeight);
  const int64_t barWidth = height < wantedHeight ? kBarWidth : 0;
  bounds.right = SaturatedInt(bounds.left + int64_t{list.right} + barWidth + kBothFrames);
  bounds.bottom = SaturatedInt(bounds.top + height);
  scrollPane->SetBounds(InsetBy(GetLocalBounds(), kFrame));
}

void ScrollingMenuEnclosure::ShowRow(int32_t index) {
  if (!sub || !scrollPane || GetScrollPane()->GetView() == nullptr) return;
  if (GetSub()->GetItem(index) == nullptr) return;
  const Rect row = GetSub()->GetRowRect(index);
  const int32_t viewHeight = GetScrollPane()->GetView()->GetLocalBounds().bottom;
  Point offset = GetScrollPane()->GetView()->GetOffset();
  // Its top last, so that it shows in a view that is too low for the row.
  offset.y = std::max(offset.y, row.bottom - viewHeight);
  offset.y = std::min(offset.y, row.top);
  GetScrollPane()->SetOffset(offset);
}

void ScrollingMenuEnclosure::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  FillRound({buffer, area.clip, kFillOpacity}, area.bounds, kCornerRadius, ThemeColors::MenuFill);
  StrokeRound({buffer, area.clip}, area.bounds, kCornerRadius, ThemeColors::MenuFrame);
}

void ScrollingMenuEnclosure::NotifyReleased(ControlPane* source) {
  const bool isChoice = sub && source == sub.Get();
  const ControlWatch self(this);
  PopupEnclosure::NotifyReleased(source);
  if (!self || !isChoice || !sub || GetHolder() == nullptr) return;
  GetHolder()->OnMenuChosen(this, GetSub()->GetSelectedIndex());
}
