// A caption beside a drop-down with a menu that scrolls.
#include "toolkit/TitledScrollingPopup.h"

TitledScrollingPopup::TitledScrollingPopup(ControlPane* ownerPane, const Rect& initialBounds,
                                           const std::string& newTitle, int32_t widthOfTitle)
    : TitledDropDown(ownerPane, initialBounds, newTitle, widthOfTitle) {
  holder.SetListener(this);
}

void TitledScrollingPopup::OnControlChanged(ControlPane* /*source*/) {
  TakeChoice(holder.GetChosenIndex());
}

void TitledScrollingPopup::OpenPopup(TopControlPane& root, const Point& point, const Rect& limits) {
  holder.SetRows(GetChoices());
  holder.SetChosenIndex(GetChosen());
  holder.ShowAt(root, point, limits);
}
