// A row of tabs, one of which is the active one.
#pragma once

#include <string>
#include <vector>

#include "toolkit/StockControl.h"

// A press makes a tab the active one: owner and listener hear of it, the listener only where it is
// another one. Tabs are as wide as their captions; where those don't fit, all become narrower
// alike.
class TabControl : public StockControl {
 public:
  using StockControl::StockControl;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnMouseLeave() override;
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;

  // Any bytes. The first tab is the active one at once.
  void AddTab(const std::string& caption);
  int32_t GetTabCount() const { return static_cast<int32_t>(tabs.size()); }
  // Outside the tabs nothing changes; nobody is told.
  void SetActiveTab(int32_t index);
  int32_t GetActiveTab() const { return activeTab; }  // -1 without tabs
  // Local places of all tabs, in order and side by side.
  std::vector<Rect> LayOutTabs() const;
  // The tab at a local point, -1 for none.
  int32_t FindTab(const Point& point) const;

 private:
  void PaintTab(const PaintTarget& target, const Rect& place, int32_t index);

  std::vector<std::string> tabs;
  int32_t activeTab = -1;
  int32_t hoverTab = -1;
  int32_t pressedTab = -1;
};
