// A caption beside a button that stays on.
#include "toolkit/TitledToggle.h"

TitledToggle::TitledToggle(ControlPane* ownerPane, const Rect& initialBounds,
                           const std::string& newTitle, int32_t widthOfTitle)
    : TitledPane(ownerPane, initialBounds, newTitle, widthOfTitle) {
  SetContent(new ToggleButton(this, ContentArea()));
}
