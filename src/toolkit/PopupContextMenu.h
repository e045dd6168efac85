// A menu that opens at a point and tells a delegate what was chosen.
#pragma once

#include "toolkit/PopupTextMenu.h"

inline constexpr int32_t kContextMenuId = 0x6374786D;  // of the list

class PopupContextMenu : public PopupTextMenu {
 public:
  // newDelegate   not owned, may be null; lives as long as it is set
  PopupContextMenu(ControlPane* ownerPane, PopupContextMenuDelegate* newDelegate);

  virtual void SetDelegate(PopupContextMenuDelegate* newDelegate);
  virtual PopupContextMenuDelegate* GetDelegate() const;

  void EnsureMenu() override;
  void OnMenuChosen(PopupEnclosure* chosenMenu, int32_t index) override;

  // Opens the list, with no row selected, its top left at a point; both arguments are global. It is
  // laid out first if labels were added or taken away.
  //
  // limits   a list that isn't unclamped is moved into them, unless they are empty
  // Nothing happens where the list is open already; where another popup is, that one stays.
  void ShowAt(TopControlPane& root, const Point& point, const Rect& limits);

 private:
  PopupContextMenuDelegate* delegate = nullptr;
};
