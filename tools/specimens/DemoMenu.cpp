// A menu of text rows, open over a panel, with a row of each look.
#include "tools/specimens/DemoMenu.h"

#include <string>
#include <vector>

namespace {

enum Row : int32_t {
  kNormal,
  kHovered,
  kSelected,
  kSeparator,
  kMarked,
  kDisabled,
  kMarkedDisabled
};

const std::vector<std::string> kLabels = {"Normal", "Hovered",  "Selected",   "-",
                                          "Marked", "Disabled", "Marked, off"};

}  // namespace

DemoMenu::DemoMenu() {
  holder.EnsureMenu();
  MenuControl& list = *holder.GetList();
  list.RebuildItems(&kLabels);
  list.GetItem(kMarked)->marked = true;
  list.GetItem(kMarkedDisabled)->marked = true;
  list.GetItem(kDisabled)->enabled = false;
  list.GetItem(kMarkedDisabled)->enabled = false;
}

void DemoMenu::Open(TopControlPane& panel, const Point& point) {
  holder.ShowAt(panel, point, {});
  panel.MouseDown(PointOn(kSelected), {}, false, kLeftButton);
  panel.MouseOver(PointOn(kHovered), {});
}

void DemoMenu::Close(TopControlPane& panel) {
  panel.MouseUp(PointOn(-1), kLeftButton);
}

// Global; of row -1, on the list's margin.
Point DemoMenu::PointOn(int32_t row) const {
  const MenuControl& list = *holder.GetList();
  Point point = {list.GetRowRect(row).left, list.GetRowRect(row).top};
  list.LocalToGlobalPoint(&point);
  return point;
}
