// A caption beside a drop-down with a menu of all choices.
#pragma once

#include "toolkit/PopupContextMenu.h"
#include "toolkit/TitledDropDown.h"

class TitledPopup : public TitledDropDown {
 public:
  using TitledDropDown::TitledDropDown;

  void OnPopupContextMenu(PopupContextMenu* menu, ControlPane* menuControl, int32_t index) override;

 protected:
  PopupBase& Holder() override { return holder; }
  void OpenPopup(TopControlPane& root, const Point& point, const Rect& limits) override;

 private:
  PopupContextMenu holder{nullptr, this};
};
