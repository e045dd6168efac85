// A caption beside a box to check.
#pragma once

#include "toolkit/Checkbox.h"
#include "toolkit/TitledPane.h"

// What the button tells, with itself as the source, goes on to the owner.
class TitledCheckbox : public TitledPane {
 public:
  TitledCheckbox(ControlPane* ownerPane, const Rect& initialBounds, const std::string& newTitle,
                 int32_t widthOfTitle);

  // Null when somebody deleted it.
  Checkbox* GetCheckbox() const { return static_cast<Checkbox*>(GetContent()); }
};
