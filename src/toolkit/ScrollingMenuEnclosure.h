// A popup with a list of text rows that scrolls where it is higher than it may be.
#pragma once

#include "toolkit/ControlWatch.h"
#include "toolkit/PopupEnclosure.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/TextMenuSub.h"

class ScrollingMenuEnclosure : public PopupEnclosure {
 public:
  // A null font is FontMenu.
  explicit ScrollingMenuEnclosure(ControlPane* ownerPane, const Font* rowFont = nullptr);

  // Lays the rows out and gives the popup its size; left and top stay.
  void Rebuild() override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  // A choice in the list is told to the owner, then to the holder.
  void NotifyReleased(ControlPane* source) override;

  // How high the popup may become; less than a row counts as one.
  void SetMostHeight(int32_t height);
  // Scrolls until a row shows, without a repaint; outside the rows nothing happens.
  void ShowRow(int32_t index);
  // Both null when somebody deleted them.
  TextMenuSub* GetSub() const { return static_cast<TextMenuSub*>(sub.Get()); }
  ScrollPane* GetScrollPane() const { return static_cast<ScrollPane*>(scrollPane.Get()); }

 private:
  ControlWatch scrollPane;
  ControlWatch sub;
  int32_t mostHeight;
};
