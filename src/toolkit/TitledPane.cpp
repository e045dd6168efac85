// A caption with room for a control at its right.
#include "toolkit/TitledPane.h"

#include <algorithm>
#include <utility>

#include "toolkit/RectAlgebra.h"

namespace {

constexpr int32_t kGap = 6;  // between caption and control

}  // namespace

TitledPane::TitledPane(ControlPane* ownerPane, const Rect& initialBounds, std::string newTitle,
                       int32_t widthOfTitle)
    : StockControl(ownerPane, initialBounds),
      title(std::move(newTitle)),
      titleWidth(widthOfTitle) {}

void TitledPane::SetBounds(const Rect& newBounds) {
  StockControl::SetBounds(newBounds);
  if (content) content->SetBounds(ContentArea());
}

void TitledPane::SetTitle(const std::string& newTitle) {
  if (title == newTitle) return;
  title = newTitle;
  SetDirty(true);
}

void TitledPane::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  Rect place = area.bounds;
  place.right = SaturatedInt(int64_t{area.bounds.left} + ContentArea().left - kGap);
  DrawCaption(TargetFor(buffer, area), title, place, TextAlignment::kRight, StockColors::Text);
}

Rect TitledPane::ContentArea() const {
  Rect area = GetLocalBounds();
  area.left = std::clamp(titleWidth, 0, std::max(area.right, 0));
  return area;
}

void TitledPane::SetContent(ControlPane* made) {
  content = made;
  AddChild(made, true);
  made->SetBounds(ContentArea());
}
