// A control whose own press opens and closes a popup.
#pragma once

// Mixed in to a control; a press on it leaves the open popup to it.
class PopupToggle {
 public:
  virtual ~PopupToggle() = default;
};
