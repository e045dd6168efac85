// A caption with room for a control at its right.
#pragma once

#include <string>

#include "toolkit/ControlWatch.h"
#include "toolkit/StockControl.h"

class TitledPane : public StockControl {
 public:
  // newTitle       any bytes
  // widthOfTitle   what the caption takes; the control gets the rest
  TitledPane(ControlPane* ownerPane, const Rect& initialBounds, std::string newTitle,
             int32_t widthOfTitle);

  void SetBounds(const Rect& newBounds) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

  void SetTitle(const std::string& newTitle);
  // Local.
  Rect ContentArea() const;

 protected:
  // Makes a control, which the pane owns, fill the content's area.
  void SetContent(ControlPane* made);
  // Null when somebody deleted it.
  ControlPane* GetContent() const { return content.Get(); }

 private:
  std::string title;
  int32_t titleWidth;
  ControlWatch content;
};
