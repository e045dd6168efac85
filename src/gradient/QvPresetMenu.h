// Holds the list that a drop-down of presets opens.
#pragma once

#include "toolkit/PopupContextMenu.h"

class QvPresetDropDown;

class QvPresetMenu : public PopupContextMenu {
 public:
  // Belongs to the drop-down.
  explicit QvPresetMenu(QvPresetDropDown* ownerDropDown);

  void EnsureMenu() override;

 private:
  QvPresetDropDown* dropDown;
};
