// The values of a new record.
#include "shell/SequenceHeader.h"

#include "gradient/GradientStops.h"

void InitSequenceHeader(SequenceRecord& record, bool withGradient) {
  record.lastRenderTime = -1;
  for (double& held : record.heldValue) held = 0.0;
  record.applyButtonState = kApplyButtonNormal;
  record.applySecondState = kApplyButtonNormal;
  record.applyReserved = 2;
  record.applyTracking = 0;
  if (withGradient) InitRecord(record.gradient);
}
