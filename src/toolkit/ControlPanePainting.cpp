// Painting a subtree into the shared buffer, and what waits to be painted.
#include <algorithm>

#include "platform/Truncate.h"
#include "toolkit/ChildWalk.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/TopControlPane.h"

namespace {

// No window is larger; a control with bounds beyond it isn't painted further.
constexpr int32_t kLargestSide = 32768;

// How many logical pixels a buffer of so many physical ones holds.
int32_t LogicalSide(const ImageBuffer& buffer, int32_t physicalSide) {
  if (!buffer.ConvertsCoordinates()) return physicalSide;
  return Truncate<int32_t>(static_cast<float>(physicalSide) / buffer.Scale());
}

Rect Bounded(const Rect& rect) {
  return {rect.left, rect.top,
          SaturatedInt(std::min<int64_t>(rect.right, int64_t{rect.left} + kLargestSide)),
          SaturatedInt(std::min<int64_t>(rect.bottom, int64_t{rect.top} + kLargestSide))};
}

}  // namespace

WindowContext* ControlPane::GetWindowContext() {
  TopControlPane* const top = GetTopOwnerPtr();
  return top != nullptr ? top->GetWindowContext() : nullptr;
}

NativeImageBuffer* ControlPane::GetScreenBuffer() {
  TopControlPane* const top = GetTopOwnerPtr();
  return top != nullptr ? top->GetScreenBuffer() : nullptr;
}

ImageBuffer* ControlPane::GetScratchBuffer() {
  TopControlPane* const top = GetTopOwnerPtr();
  return top != nullptr ? top->GetScratchBuffer() : nullptr;
}

void ControlPane::Redraw(const Rect& rect) {
  Rect area = rect;
  ClipToVisibleArea(&area);
  if (IsEmpty(area)) return;
  area = Bounded(area);
  const NativeImageBuffer* const first = GetScreenBuffer();
  if (first == nullptr || GetWindowContext() == nullptr) return;
  const int32_t width = LogicalSide(*first, first->Width());
  const int32_t height = LogicalSide(*first, first->Height());
  if (width < 1 || height < 1) return;

  const ControlWatch self(this);
  for (int64_t top = area.top; top < area.bottom; top += height) {
    for (int64_t left = area.left; left < area.right; left += width) {
      const Rect tile = {SaturatedInt(left), SaturatedInt(top),
                         SaturatedInt(std::min<int64_t>(left + width, area.right)),
                         SaturatedInt(std::min<int64_t>(top + height, area.bottom))};
      RedrawTile(tile);
      if (!self) return;
    }
  }
}

void ControlPane::RedrawTile(const Rect& tile) {
  NativeImageBuffer* const buffer = GetScreenBuffer();
  if (buffer == nullptr) return;
  const ControlWatch self(this);
  DrawTree(tile, {tile.left, tile.top}, *buffer);
  if (!self) return;
  // Painting may have ended the window's event.
  WindowContext* const context = GetWindowContext();
  if (context == nullptr) return;
  Point place = {tile.left, tile.top};
  LocalToGlobalPoint(&place);
  const Rect size = AtOrigin(tile);
  BlitToWindow(*buffer, 0, 0, size.right, size.bottom, place.x, place.y, context);
}

void ControlPane::RedrawInOwner(const Rect& rect) {
  if (owner == nullptr) return;
  Rect area = rect;
  LocalToOwnerRect(&area);
  owner->Redraw(area);
}

void ControlPane::RedrawThroughRoot(const Rect& rect) {
  TopControlPane* const top = GetTopOwnerPtr();
  if (top == nullptr) return;
  Rect area = rect;
  LocalToGlobalRect(&area);
  top->GlobalToLocalRect(&area);
  top->Redraw(area);
}

void ControlPane::RedrawSelf() {
  TopControlPane* const top = GetTopOwnerPtr();
  if (top == nullptr) return;
  Rect area = GetGlobalBounds();
  top->GlobalToLocalRect(&area);
  top->Redraw(area);
}

void ControlPane::RedrawIfParametersChanged() {
  const ControlWatch self(this);
  if (SyncFromParameters() && self) RedrawSelf();
}

void ControlPane::BlitToWindow(NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                               int32_t height, int32_t dstX, int32_t dstY, WindowContext* context) {
  if (context == nullptr) return;
  if (context->DeviceContext() == nullptr) {
    context->Invalidate(MovedBy(Rect{0, 0, width, height}, dstX, dstY));
  } else {
    buffer.BlitRect(context->DeviceContext(), srcX, srcY, width, height, dstX, dstY);
  }
}

void ControlPane::DrawTree(const Rect& rect, const Point& origin, ImageBuffer& buffer) {
  const Point position =
      MovedBy(Point{rect.left, rect.top}, -int64_t{origin.x}, -int64_t{origin.y});
  const ControlPane* const occluder = FindOccluder(rect);
  const ControlWatch self(this);
  if (occluder == nullptr) Paint(rect, buffer, position);
  if (!self) return;
  ChildWalk walk(*this, ChildWalk::Direction::kFromBottom);
  if (occluder != nullptr) walk.StartAt(*occluder);
  while (ControlPane* const child = walk.Next()) DrawChild(*child, rect, origin, buffer);
  if (self) PaintOverlay(rect, buffer, position);
}

ControlPane* ControlPane::FindOccluder(const Rect& rect) const {
  for (ControlPane* const child : children) {
    if (!child->IsVisible()) continue;
    Rect area = rect;
    child->OwnerToLocalRect(&area);
    if (child->IsOpaqueOver(area)) return child;
  }
  return nullptr;
}

void ControlPane::DrawChild(ControlPane& child, const Rect& rect, const Point& origin,
                            ImageBuffer& buffer) {
  if (!child.IsVisible()) return;
  Rect area = ClampedInto(rect, child.bounds);
  if (IsEmpty(area)) return;
  Point childOrigin = origin;
  child.OwnerToLocalRect(&area);
  child.OwnerToLocalPoint(&childOrigin);
  child.DrawTree(area, childOrigin, buffer);
}

void ControlPane::Paint(const Rect& /*rect*/, ImageBuffer& /*buffer*/, const Point& /*position*/) {}

void ControlPane::PaintOverlay(const Rect& /*rect*/, ImageBuffer& /*buffer*/,
                               const Point& /*position*/) {}

bool ControlPane::IsOpaqueOver(const Rect& /*rect*/) const {
  return false;
}

void ControlPane::RaiseAndRedraw() {
  const ControlWatch self(this);
  MoveToFront();
  if (self) RedrawSelf();
}

void ControlPane::SetDirty(bool newDirty) {
  dirty = newDirty;
}

bool ControlPane::IsDirty() const {
  return dirty;
}

void ControlPane::ClearDirtyTree() {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->ClearDirtyTree();
  if (!walk.PaneIsGone()) SetDirty(false);
}

Rect ControlPane::CollectDirtyRect() {
  const ControlWatch self(this);
  const bool wasDirty = IsDirty();
  if (wasDirty) ClearDirtyTree();
  if (!self) return {};
  const bool changed = wasDirty || TakeChangedParameters();
  if (!self) return {};
  Rect area = changed ? GetGlobalBounds() : Rect{};
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) area = UnionOf(area, child->CollectDirtyRect());
  return area;
}
