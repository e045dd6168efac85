// What the stock controls share: they show pointer, press and focus, and tell a listener.
#include "toolkit/StockControl.h"

#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kOpaque = 256;
constexpr int32_t kDisabledOpacity = 120;

}  // namespace

void StockControl::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

void StockControl::OnMouseEnter() {
  ControlPane::OnMouseEnter();
  SetDirty(true);
}

void StockControl::OnMouseLeave() {
  ControlPane::OnMouseLeave();
  SetDirty(true);
}

void StockControl::OnFocusGained() {
  SetDirty(true);
}

void StockControl::OnFocusLost() {
  SetDirty(true);
}

bool StockControl::HasFocus() {
  TopControlPane* const root = GetTopOwnerPtr();
  return root != nullptr && root->GetFocus() == this;
}

PaintArea StockControl::AreaToPaint(const Rect& rect, const Point& position) const {
  return AreaInBuffer(GetLocalBounds(), rect, position);
}

PaintTarget StockControl::TargetFor(ImageBuffer& buffer, const PaintArea& area) const {
  return {buffer, area.clip, IsEnabled() ? kOpaque : kDisabledOpacity};
}

void StockControl::PaintFocus(const PaintTarget& target, const Rect& rect, double radius) {
  if (HasFocus()) StrokeRound(target, rect, radius, StockColors::AccentOver);
}

bool StockControl::RedrawAndTellListener() {
  const ControlWatch self(this);
  RedrawSelf();
  if (self && listener != nullptr) listener->OnControlChanged(this);
  return static_cast<bool>(self);
}

bool StockControl::RedrawAndTellPress() {
  const ControlWatch self(this);
  RedrawSelf();
  if (self) NotifyPressed(this);
  return static_cast<bool>(self);
}

bool StockControl::RedrawAndTellRelease() {
  const ControlWatch self(this);
  RedrawSelf();
  if (self) NotifyReleased(this);
  return static_cast<bool>(self);
}
