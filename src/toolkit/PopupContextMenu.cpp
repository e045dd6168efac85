// Opening a menu at a point, and passing on what was chosen.
#include "toolkit/PopupContextMenu.h"

#include "toolkit/PopupPlacement.h"
#include "toolkit/TopControlPane.h"

PopupContextMenu::PopupContextMenu(ControlPane* ownerPane, PopupContextMenuDelegate* newDelegate)
    : PopupTextMenu(ownerPane), delegate(newDelegate) {}

void PopupContextMenu::SetDelegate(PopupContextMenuDelegate* newDelegate) {
  delegate = newDelegate;
}

PopupContextMenuDelegate* PopupContextMenu::GetDelegate() const {
  return delegate;
}

void PopupContextMenu::EnsureMenu() {
  PopupTextMenu::EnsureMenu();
  GetMenu()->SetId(kContextMenuId);
}

void PopupContextMenu::OnMenuChosen(PopupEnclosure* chosenMenu, int32_t index) {
  if (delegate != nullptr) delegate->OnPopupContextMenu(this, chosenMenu, index);
}

void PopupContextMenu::ShowAt(TopControlPane& root, const Point& point, const Rect& limits) {
  EnsureMenu();
  MenuControl* const list = GetList();
  if (list == nullptr || list->IsOpen() || root.GetPopup() != nullptr) return;

  list->ForgetRows();
  if (!list->IsBuilt()) list->RebuildItems(nullptr);
  Rect rect = MovedTo(list->GetLocalBounds(), point);
  if (!list->IsUnclamped()) rect = ShiftedInto(rect, limits);
  root.GlobalToLocalRect(&rect);
  list->SetBounds(rect);
  RememberOpen();
  root.ShowPopup(list, false, false);
}
