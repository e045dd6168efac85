// Who is told what was chosen in a context menu.
#pragma once

#include <cstdint>

class ControlPane;
class PopupContextMenu;

class PopupContextMenuDelegate {
 public:
  // menuControl   the list; index   the row chosen
  virtual void OnPopupContextMenu(PopupContextMenu* menu, ControlPane* menuControl, int32_t index) {
    (void)menu;
    (void)menuControl;
    (void)index;
  }
  virtual ~PopupContextMenuDelegate() = default;
};
