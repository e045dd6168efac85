// The base of buttons that show a label and act at each press.
#pragma once

#include "toolkit/ButtonControl.h"

class MomentaryButton : public ButtonControl {
 public:
  using ButtonControl::ButtonControl;
};
