// The list of text rows inside a menu that scrolls.
#pragma once

#include "toolkit/MenuControl.h"

// Its owner is the view that shows a part of it. Rows that the view doesn't show can't be pointed
// at or chosen; a drag beyond the view scrolls by a row.
class TextMenuSub : public MenuControl {
 public:
  using MenuControl::MenuControl;

  bool IsPopup() const override { return false; }
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

 private:
  // Local.
  Rect ShownArea() const;
  // The point, or one on no row if the view doesn't show it.
  Point Seen(const Point& point) const;
  void ScrollToward(const Point& point);
};
