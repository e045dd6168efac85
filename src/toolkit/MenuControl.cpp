// A menu under the mouse.
#include "toolkit/MenuControl.h"

#include "toolkit/PopupBase.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kFlashMilliseconds = 50;

}  // namespace

MenuControl::MenuControl(ControlPane* ownerPane, const Rect& initialBounds, const Font* rowFont,
                         const Font* selectedRowFont)
    : PopupEnclosure(ownerPane, initialBounds),
      font(rowFont != nullptr ? rowFont : &FontMenu()),
      selectedFont(selectedRowFont != nullptr ? selectedRowFont : font) {}

void MenuControl::EndTracking() {
  PopupEnclosure::EndTracking();
  TopControlPane* const root = GetTopOwnerPtr();
  if (root != nullptr) root->HidePopup();
}

void MenuControl::OnMouseDown(WindowContext* context, const Point& point) {
  (void)context;
  const int32_t index = FindRow(point);
  if (index < 0) return;
  selectedIndex = index;
  RedrawIfOpen();
}

void MenuControl::OnMouseDrag(WindowContext* context, const Point& point) {
  (void)context;
  const int32_t index = FindRow(point);
  if (index == hoverIndex) return;
  hoverIndex = index;
  if (index >= 0) selectedIndex = index;
  RedrawIfOpen();
}

void MenuControl::OnMouseUp(WindowContext* context, const Point& point) {
  (void)context;
  const int32_t index = FindRow(point);
  const MenuItem* const item = GetItem(index);
  if (item == nullptr || item->enabled) {
    selectedIndex = index;
    if (item != nullptr && !(FlashRow(index) && AnnounceChoice(index))) return;
  }
  hoverIndex = -1;
}

int32_t MenuControl::GetCursorAt(WindowContext* context, const Point& point,
                                 const Modifiers& modifiers) {
  (void)context;
  (void)modifiers;
  const int32_t index = FindRow(point);
  if (index != hoverIndex) {
    hoverIndex = index;
    RedrawIfOpen();
  }
  return 0;
}

MenuItem* MenuControl::GetItem(int32_t index) const {
  return index >= 0 && index < GetItemCount() ? items[static_cast<size_t>(index)].get() : nullptr;
}

void MenuControl::ForgetRows() {
  selectedIndex = -1;
  hoverIndex = -1;
}

bool MenuControl::FlashRow(int32_t index) {
  const ControlWatch watch(this);
  for (const int32_t shown : {-1, index}) {
    hoverIndex = shown;
    RedrawIfOpen();
    if (!watch) return false;
    Pause(kFlashMilliseconds);
    if (!watch) return false;
  }
  return true;
}

bool MenuControl::AnnounceChoice(int32_t index) {
  const ControlWatch watch(this);
  NotifyReleased(this);
  if (!watch) return false;
  if (GetHolder() != nullptr) GetHolder()->OnMenuChosen(this, index);
  return watch.Get() != nullptr;
}

void MenuControl::RedrawIfOpen() {
  if (IsOpen()) RedrawSelf();
}
