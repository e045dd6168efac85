// Holds the list that a drop-down of presets opens.
#include "gradient/QvPresetMenu.h"

#include "gradient/QvMenuControl.h"
#include "gradient/QvPresetDropDown.h"

QvPresetMenu::QvPresetMenu(QvPresetDropDown* ownerDropDown)
    : PopupContextMenu(ownerDropDown, nullptr), dropDown(ownerDropDown) {}

void QvPresetMenu::EnsureMenu() {
  if (GetMenu() == nullptr) SetMenu(new QvMenuControl(*dropDown, defaultFont));
  GetMenu()->SetId(kContextMenuId);
}
