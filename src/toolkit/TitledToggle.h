// A caption beside a button that stays on.
#pragma once

#include "toolkit/TitledPane.h"
#include "toolkit/ToggleButton.h"

// What the button tells, with itself as the source, goes on to the owner.
class TitledToggle : public TitledPane {
 public:
  TitledToggle(ControlPane* ownerPane, const Rect& initialBounds, const std::string& newTitle,
               int32_t widthOfTitle);

  // Null when somebody deleted it.
  ToggleButton* GetToggle() const { return static_cast<ToggleButton*>(GetContent()); }
};
