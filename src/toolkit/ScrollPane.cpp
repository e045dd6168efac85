// A view on a content that may be larger, with a scroll bar for each direction.
#include "toolkit/ScrollPane.h"

#include <algorithm>

#include "toolkit/RectAlgebra.h"

namespace {

constexpr ScrollAxis kAxes[] = {ScrollAxis::kHorizontal, ScrollAxis::kVertical};

// What a direction has when a bar takes this much of it.
int32_t Left(int32_t room, bool barShown, int32_t barWidth) {
  return barShown ? std::max(room - std::min(barWidth, room), 0) : room;
}

int32_t Along(const Point& point, ScrollAxis axis) {
  return axis == ScrollAxis::kHorizontal ? point.x : point.y;
}

}  // namespace

ScrollPane::ScrollPane(ControlPane* ownerPane, const Rect& initialBounds, int32_t verticalBarWidth,
                       int32_t horizontalBarWidth)
    : ControlPane(ownerPane, initialBounds) {
  auto* const made = new ViewPane(this, Rect{});
  view = made;
  AddChild(made, true);
  MakeBar(ScrollAxis::kHorizontal, horizontalBarWidth);
  MakeBar(ScrollAxis::kVertical, verticalBarWidth);
  LayOut();
}

ScrollPane::~ScrollPane() {
  for (const ScrollAxis axis : kAxes) {
    ScrollBar* const bar = GetBar(axis);
    if (bar != nullptr && !ContainsChild(bar)) delete bar;
  }
}

void ScrollPane::SetBounds(const Rect& newBounds) {
  ControlPane::SetBounds(newBounds);
  LayOut();
}

void ScrollPane::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

void ScrollPane::OnControlChanged(ControlPane* /*source*/) {
  Point offset = GetView() != nullptr ? GetView()->GetOffset() : Point{};
  if (GetBar(ScrollAxis::kHorizontal) != nullptr) {
    offset.x = GetBar(ScrollAxis::kHorizontal)->GetPosition();
  }
  if (GetBar(ScrollAxis::kVertical) != nullptr) {
    offset.y = GetBar(ScrollAxis::kVertical)->GetPosition();
  }
  ScrollTo(offset);
}

bool ScrollPane::SetContent(ControlPane* newContent) {
  if (GetView() == nullptr || !GetView()->SetContent(newContent)) return false;
  LayOut();
  return true;
}

void ScrollPane::SetPolicy(ScrollAxis axis, int32_t policy) {
  if (policy != kBarAlways && policy != kBarAsNeeded) return;
  Of(axis).policy = policy;
  LayOut();
}

void ScrollPane::LayOut() {
  if (GetView() == nullptr) return;
  DecideBars();
  for (const ScrollAxis axis : kAxes) ShowBar(axis);
  const Rect local = GetLocalBounds();
  const Axis& across = Of(ScrollAxis::kHorizontal);
  const Axis& down = Of(ScrollAxis::kVertical);
  const Rect room = {0, 0, Left(local.right, down.shown, down.barWidth),
                     Left(local.bottom, across.shown, across.barWidth)};
  GetView()->SetBounds(room);
  GetView()->SetOffset(GetView()->GetOffset());
  for (const ScrollAxis axis : kAxes) PlaceBar(axis, room);
  SetDirty(true);
}

void ScrollPane::SetOffset(const Point& offset) {
  if (GetView() == nullptr) return;
  GetView()->SetOffset(offset);
  const Point held = GetView()->GetOffset();
  for (const ScrollAxis axis : kAxes) {
    if (GetBar(axis) != nullptr) GetBar(axis)->SetPosition(Along(held, axis));
  }
}

void ScrollPane::ScrollTo(const Point& offset) {
  SetOffset(offset);
  RedrawSelf();
}

ScrollBar* ScrollPane::GetBar(ScrollAxis axis) const {
  return static_cast<ScrollBar*>(Of(axis).bar.Get());
}

bool ScrollPane::IsBarShown(ScrollAxis axis) const {
  return GetBar(axis) != nullptr && Of(axis).shown;
}

void ScrollPane::MakeBar(ScrollAxis axis, int32_t width) {
  if (width <= 0) return;
  auto* const bar = new ScrollBar(this, Rect{});
  bar->SetListener(this);
  Of(axis).bar = bar;
  Of(axis).barWidth = width;
}

// A bar takes room from the other direction, which may then need one too: that settles after two
// rounds, since needing only grows.
void ScrollPane::DecideBars() {
  Axis& across = Of(ScrollAxis::kHorizontal);
  Axis& down = Of(ScrollAxis::kVertical);
  const Rect local = GetLocalBounds();
  const Point size = GetView()->ContentSize();
  across.shown = across.bar && across.policy == kBarAlways;
  down.shown = down.bar && down.policy == kBarAlways;
  for (int32_t round = 0; round < 2; ++round) {
    if (across.bar && size.x > Left(local.right, down.shown, down.barWidth)) across.shown = true;
    if (down.bar && size.y > Left(local.bottom, across.shown, across.barWidth)) down.shown = true;
  }
}

void ScrollPane::ShowBar(ScrollAxis axis) {
  ScrollBar* const bar = GetBar(axis);
  if (bar == nullptr || ContainsChild(bar) == Of(axis).shown) return;
  if (Of(axis).shown) {
    bar->SetState(GetState());  // which passed it by while it was no child
    AddChild(bar, true);
  } else {
    RemoveChild(bar);
  }
}

void ScrollPane::PlaceBar(ScrollAxis axis, const Rect& room) {
  ScrollBar* const bar = GetBar(axis);
  if (bar == nullptr) return;
  const Rect local = GetLocalBounds();
  const bool isAcross = axis == ScrollAxis::kHorizontal;
  bar->SetBounds(isAcross ? Rect{0, room.bottom, room.right, local.bottom}
                          : Rect{room.right, 0, local.right, room.bottom});
  bar->SetExtent(Along(GetView()->ContentSize(), axis), isAcross ? room.right : room.bottom);
  bar->SetPosition(Along(GetView()->GetOffset(), axis));
}
