// A caption beside a box to check.
#include "toolkit/TitledCheckbox.h"

TitledCheckbox::TitledCheckbox(ControlPane* ownerPane, const Rect& initialBounds,
                               const std::string& newTitle, int32_t widthOfTitle)
    : TitledPane(ownerPane, initialBounds, newTitle, widthOfTitle) {
  SetContent(new Checkbox(this, ContentArea()));
}
