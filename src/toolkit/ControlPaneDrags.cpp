// Moving and resizing a control with the mouse.
#include <algorithm>
#include <array>

#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/PopupPlacement.h"
#include "toolkit/RectAlgebra.h"

namespace {

// Which edges each zone moves.
struct ZoneEdges {
  bool left, top, right, bottom;
};
constexpr std::array<ZoneEdges, 8> kZoneEdges = {{
    {true, false, false, false},
    {false, true, false, false},
    {false, false, true, false},
    {false, false, false, true},
    {true, true, false, false},
    {false, true, true, false},
    {true, false, false, true},
    {false, false, true, true},
}};

// One direction of a resize: the near edge moves, the far one, or none.
void ResizeSpan(int32_t* nearEdge, int32_t* farEdge, bool movesNear, bool movesFar, int64_t offset,
                int32_t shortest, int32_t longest) {
  if (!movesNear && !movesFar) return;
  const int64_t nearMoved = *nearEdge + (movesNear ? offset : 0);
  const int64_t farMoved = *farEdge + (movesFar ? offset : 0);
  const int64_t length =
      std::max<int64_t>(shortest, std::min<int64_t>(longest, farMoved - nearMoved));
  if (movesNear) {
    *nearEdge = SaturatedInt(*farEdge - length);
  } else {
    *farEdge = SaturatedInt(*nearEdge + length);
  }
}

}  // namespace

void ControlPane::DragMove(WindowContext* /*context*/, const Point& point) {
  if (trackingMode != kTrackMove || owner == nullptr) return;
  Point target = point;
  LocalToOwnerPoint(&target);
  const Rect moved =
      MovedTo(bounds, MovedBy(target, -int64_t{downPointLocal.x}, -int64_t{downPointLocal.y}));
  StoreDraggedBounds(ShiftedInto(moved, owner->GetLocalBounds()), false);
}

void ControlPane::DragResize(WindowContext* /*context*/, const Point& point) {
  if (trackingMode != kTrackResize || owner == nullptr) return;
  if (resizeZone < 0 || resizeZone >= static_cast<int32_t>(kZoneEdges.size())) return;
  // The control's own space moves with its left and top edge; the offset is measured in the space
  // of the press.
  Point target = point;
  LocalToOwnerPoint(&target);
  const int64_t dx = int64_t{target.x} - downBounds.left - downPointLocal.x;
  const int64_t dy = int64_t{target.y} - downBounds.top - downPointLocal.y;
  const ZoneEdges edges = kZoneEdges[static_cast<size_t>(resizeZone)];
  Rect resized = downBounds;
  ResizeSpan(&resized.left, &resized.right, edges.left, edges.right, dx, minWidth, maxWidth);
  ResizeSpan(&resized.top, &resized.bottom, edges.top, edges.bottom, dy, minHeight, maxHeight);
  StoreDraggedBounds(resized, true);
}

void ControlPane::StoreDraggedBounds(const Rect& dragged, bool layOut) {
  if (dragged == bounds) return;
  Rect changed = UnionOf(bounds, dragged);
  const ControlWatch self(this);
  SetBounds(dragged);
  if (layOut && self) LayoutChildren();
  if (!self) return;
  OwnerToLocalRect(&changed);
  RedrawThroughRoot(changed);
  if (self) OnDragMoved();
}

void ControlPane::OnDragMoved() {}

bool ControlPane::FindResizeZone(const Point& point, int32_t inset, int32_t* zone) const {
  const Rect area = GetLocalBounds();
  const int32_t innerLeft = inset;
  const int32_t innerTop = inset;
  const int32_t innerRight = SaturatedInt(int64_t{area.right} - inset);
  const int32_t innerBottom = SaturatedInt(int64_t{area.bottom} - inset);
  const std::array<Rect, 8> bands = {{
      {0, innerTop, innerLeft, innerBottom},
      {innerLeft, 0, innerRight, innerTop},
      {innerRight, innerTop, area.right, innerBottom},
      {innerLeft, innerBottom, innerRight, area.bottom},
      {0, 0, innerLeft, innerTop},
      {innerRight, 0, area.right, innerTop},
      {0, innerBottom, innerLeft, area.bottom},
      {innerRight, innerBottom, area.right, area.bottom},
  }};
  const auto* const found = std::find_if(
      bands.begin(), bands.end(), [&point](const Rect& band) { return Contains(band, point); });
  if (found == bands.end()) return false;
  *zone = static_cast<int32_t>(found - bands.begin());
  return true;
}
