// A root without a host: a ground of one colour, repaints as invalid areas of its window.
#pragma once

#include "toolkit/ThemeColors.h"
#include "toolkit/TopControlPane.h"

// What its controls tell ends here. A press on a PopupToggle leaves the open popup to it.
class SimpleTopControlPane : public TopControlPane {
 public:
  // Makes sure that the shared screen buffer holds the pane. Throws App::ExceptionInfo
  // kOutOfMemory.
  explicit SimpleTopControlPane(const Rect& initialBounds);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  bool IsOpaqueOver(const Rect& rect) const override;
  void NotifyPressed(ControlPane* source) override;
  void NotifyReleased(ControlPane* source) override;
  bool ClickClosesPopup(ControlPane* popup, ControlPane* hit) override;

  void SetBackground(ColorBGRA color);

 private:
  ColorBGRA background = ThemeColors::PanelBackground;
};
