// How the rows of a menu lie, and which one is where.
#include <algorithm>

#include "drawing/Labeler.h"
#include "toolkit/MenuControl.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr int32_t kTextSlack = 2;  // logical pixels beyond the measured text

}  // namespace

void MenuControl::Rebuild() {
  RebuildItems(nullptr);
}

void MenuControl::RebuildItems(const std::vector<std::string>* newLabels) {
  ClearItems();
  if (newLabels != nullptr) labels = *newLabels;

  Labeler& labeler = SharedLabeler();
  labeler.SetFont(font);
  const int32_t lineHeight = labeler.GetLineHeight();
  items.reserve(labels.size());
  int64_t top = 0;
  int64_t contentWidth = 0;
  for (const std::string& label : labels) {
    auto item = std::make_unique<MenuItem>();
    item->font = GetItemCount() == selectedIndex ? selectedFont : font;
    item->label = label;
    item->textWidth = SaturatedInt(int64_t{labeler.MeasureString(label.c_str(), 0)} + kTextSlack);
    item->height = lineHeight + 2 * item->padY;
    item->top = SaturatedInt(top);
    top += item->height;
    contentWidth = std::max<int64_t>(contentWidth, item->textWidth + 2 * int64_t{item->padX});
    items.push_back(std::move(item));
  }

  contentWidth = std::clamp<int64_t>(contentWidth, minContentWidth, maxContentWidth);
  bounds.right = SaturatedInt(bounds.left + 2 * int64_t{marginX} + contentWidth);
  bounds.bottom = SaturatedInt(bounds.top + 2 * int64_t{marginY} + top);
  SyncFromParameters();
}

void MenuControl::ClearItems() {
  items.clear();
}

bool MenuControl::IsBuilt() const {
  return items.size() == labels.size();
}

void MenuControl::ClearAll() {
  ClearItems();
  labels.clear();
}

Rect MenuControl::GetRowRect(int32_t index) const {
  const MenuItem* const item = GetItem(index);
  if (item == nullptr) return {};
  const int64_t top = int64_t{marginY} + item->top;
  return {marginX, SaturatedInt(top), GetLocalBounds().right - marginX,
          SaturatedInt(top + item->height)};
}

int32_t MenuControl::FindRow(const Point& point) const {
  const int32_t index = FirstRowBelow(point.y);
  const MenuItem* const item = GetItem(index);
  if (item == nullptr || item->IsSeparator()) return -1;
  return Contains(GetRowRect(index), point) ? index : -1;
}

int32_t MenuControl::FirstRowBelow(int32_t y) const {
  const int64_t yInRows = int64_t{y} - marginY;
  const auto found = std::partition_point(items.begin(), items.end(), [yInRows](const auto& item) {
    return int64_t{item->top} + item->height <= yInRows;
  });
  return static_cast<int32_t>(found - items.begin());
}
