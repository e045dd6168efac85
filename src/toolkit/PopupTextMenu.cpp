// Holding a list of text rows.
#include "toolkit/PopupTextMenu.h"

PopupTextMenu::PopupTextMenu(ControlPane* ownerPane, const Font* font)
    : PopupBase(ownerPane), defaultFont(font != nullptr ? font : &FontDefault()) {}

void PopupTextMenu::EnsureMenu() {
  if (GetMenu() == nullptr) SetMenu(new MenuControl(nullptr, Rect{}, defaultFont));
}

void PopupTextMenu::RebuildMenu() {
  if (GetMenu() != nullptr) GetMenu()->Rebuild();
}

MenuControl* PopupTextMenu::GetList() const {
  return dynamic_cast<MenuControl*>(GetMenu());
}
