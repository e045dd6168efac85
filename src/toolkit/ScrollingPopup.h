// Holds a menu of text rows that scrolls.
#pragma once

#include <string>
#include <vector>

#include "toolkit/PopupTextMenu.h"
#include "toolkit/ScrollingMenuEnclosure.h"
#include "toolkit/StockListener.h"

class ScrollingPopup : public PopupTextMenu {
 public:
  using PopupTextMenu::PopupTextMenu;

  void EnsureMenu() override;
  void OnMenuChosen(PopupEnclosure* chosenMenu, int32_t index) override;

  // Told of each choice, with this as the source; it may delete this. Not owned, may be null.
  void SetListener(StockListener* newListener) { listener = newListener; }
  void SetRows(const std::vector<std::string>& rows);
  // The row chosen last; -1 before there is one. Opening shows it as the selected one.
  int32_t GetChosenIndex() const { return chosenIndex; }
  void SetChosenIndex(int32_t index) { chosenIndex = index; }
  // Null where there is none yet.
  ScrollingMenuEnclosure* GetEnclosure() const;

  // Opens the menu, its top left at a point; both arguments are global. It is moved into the limits
  // unless they are empty, and is at most as high as they are. Nothing happens where a popup is
  // open.
  void ShowAt(TopControlPane& root, const Point& point, const Rect& limits);

 private:
  StockListener* listener = nullptr;
  int32_t chosenIndex = -1;
};
