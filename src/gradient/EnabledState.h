// Enables and disables a control only where that changes it.
#pragma once

#include "toolkit/ControlPane.h"

// The panel does this at every event; a control that stays as it is wants no repaint. `control` may
// be null.
inline void ChangeEnabled(ControlPane* control, bool enabled) {
  if (control != nullptr && control->IsEnabled() != enabled) control->SetEnabled(enabled);
}
