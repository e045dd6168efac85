// A row of tabs, one of which is the active one.
#pragma once

#include <string>
#include <vector>

#include "toolkit/CellRow.h"

// Tabs are as wide as their captions; where those don't fit, all become narrower alike.
class TabControl : public CellRow {
 public:
  using CellRow::CellRow;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  int32_t GetCellCount() const override { return static_cast<int32_t>(tabs.size()); }
  int32_t FindCell(const Point& point) const override;

  // Any bytes.
  void AddTab(const std::string& caption);
  // Local places of all tabs, in order and side by side.
  std::vector<Rect> LayOutTabs() const;

 private:
  void PaintTab(const PaintTarget& target, const Rect& place, int32_t index);

  std::vector<std::string> tabs;
};
