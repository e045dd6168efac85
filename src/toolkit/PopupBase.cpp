// Holding a popup, and which one is open.
#include "toolkit/PopupBase.h"

namespace {

// Of the popup that was opened last, which may be closed by then.
ControlWatch openHolder;
ControlWatch openMenu;

}  // namespace

PopupBase::PopupBase(ControlPane* ownerPane) : ControlPane(ownerPane, Rect{}) {}

PopupBase::~PopupBase() {
  SetMenu(nullptr);
}

PopupEnclosure* PopupBase::GetMenu() const {
  return static_cast<PopupEnclosure*>(menu.Get());
}

void PopupBase::SetMenu(PopupEnclosure* newMenu) {
  PopupEnclosure* const old = GetMenu();
  if (newMenu == old) return;
  if (newMenu != nullptr) {
    if (newMenu->GetHolder() != nullptr) newMenu->GetHolder()->menu = nullptr;
    newMenu->SetHolder(this);
  }
  menu = newMenu;
  delete old;
}

void PopupBase::OnMenuChosen(PopupEnclosure* chosenMenu, int32_t index) {
  (void)chosenMenu;
  (void)index;
}

PopupEnclosure* PopupBase::OpenMenu() {
  auto* const opened = static_cast<PopupEnclosure*>(openMenu.Get());
  return opened != nullptr && opened->IsOpen() ? opened : nullptr;
}

PopupBase* PopupBase::OpenHolder() {
  return OpenMenu() != nullptr ? static_cast<PopupBase*>(openHolder.Get()) : nullptr;
}

void PopupBase::RememberOpen() {
  openHolder = this;
  openMenu = menu;
}
