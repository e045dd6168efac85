// The list of text rows inside a menu that scrolls.
#include "toolkit/TextMenuSub.h"

#include "toolkit/RectAlgebra.h"
#include "toolkit/ScrollPane.h"

namespace {

constexpr Point kOnNoRow = {-1, -1};

}  // namespace

void TextMenuSub::OnMouseDrag(WindowContext* context, const Point& point) {
  const ControlWatch self(this);
  ScrollToward(point);
  if (self) MenuControl::OnMouseDrag(context, Seen(point));
}

void TextMenuSub::OnMouseUp(WindowContext* context, const Point& point) {
  MenuControl::OnMouseUp(context, Seen(point));
}

void TextMenuSub::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  PaintItems(rect, buffer, position);
}

Rect TextMenuSub::ShownArea() const {
  if (GetOwner() == nullptr) return GetLocalBounds();
  Rect area = GetOwner()->GetLocalBounds();
  OwnerToLocalRect(&area);
  return area;
}

Point TextMenuSub::Seen(const Point& point) const {
  return Contains(ShownArea(), point) ? point : kOnNoRow;
}

void TextMenuSub::ScrollToward(const Point& point) {
  auto* const view = dynamic_cast<ViewPane*>(GetOwner());
  auto* const pane = view != nullptr ? dynamic_cast<ScrollPane*>(view->GetOwner()) : nullptr;
  const MenuItem* const first = GetItem(0);
  if (pane == nullptr || first == nullptr) return;
  const Rect area = ShownArea();
  Point offset = view->GetOffset();
  if (point.y < area.top) {
    offset.y = SaturatedInt(int64_t{offset.y} - first->height);
  } else if (point.y >= area.bottom) {
    offset.y = SaturatedInt(int64_t{offset.y} + first->height);
  } else {
    return;
  }
  pane->ScrollTo(offset);
}
