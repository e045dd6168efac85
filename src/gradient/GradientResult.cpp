// Shows what has become of the colour map.
#include "gradient/GradientResult.h"

void GradientResult::GradientChanged(ControlPane* /*sender*/) {
  SetDirty(true);
  RedrawSelf();
}

void GradientResult::SetGradient(const GradientView* newGradient) {
  if (newGradient == gradient) return;
  gradient = newGradient;
  SetDirty(true);
}
