// A caption beside a drop-down with a menu that scrolls.
#pragma once

#include "toolkit/ScrollingPopup.h"
#include "toolkit/TitledDropDown.h"

class TitledScrollingPopup : public TitledDropDown, private StockListener {
 public:
  TitledScrollingPopup(ControlPane* ownerPane, const Rect& initialBounds,
                       const std::string& newTitle, int32_t widthOfTitle);

  ScrollingPopup& GetPopup() { return holder; }

 protected:
  PopupBase& Holder() override { return holder; }
  void OpenPopup(TopControlPane& root, const Point& point, const Rect& limits) override;

 private:
  void OnControlChanged(ControlPane* source) override;

  ScrollingPopup holder{nullptr};
};
