// A panel for the help texts of controls.
#pragma once

#include <string>

#include "toolkit/ControlPane.h"
#include "toolkit/TitleString.h"

// Shows the title as a heading, and under it the text in lines of the panel's width.
class HelpPanel : public ControlPane, public TitleString {
 public:
  using ControlPane::ControlPane;

  void SetTitle(const std::string& newTitle) override;
  // Copied; any bytes up to a 0.
  void SetText(const std::string& newText);
  const std::string& GetText() const { return text; }
  // Takes the help text of the control at a global point of a tree; where none has any, that which
  // is shown without one.
  void ShowHelpAt(ControlPane& tree, const Point& point);
  void SetIdleText(const std::string& newIdleText) { idleText = newIdleText; }

  void SetEnabled(bool enabled) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

 private:
  std::string text;
  std::string idleText;  // where no control has any
};
