// A menu of text rows, open over a panel, with a row of each look.
#pragma once

#include "toolkit/PopupContextMenu.h"
#include "toolkit/TopControlPane.h"

class DemoMenu {
 public:
  DemoMenu();

  // Opens the menu, its top left at a global point, and brings its rows into their looks by the
  // events that lead there. The panel has a window.
  void Open(TopControlPane& panel, const Point& point);
  // Closes it by a release beside the rows.
  void Close(TopControlPane& panel);

 private:
  Point PointOn(int32_t row) const;

  PopupContextMenu holder{nullptr, nullptr};
};
