// The place where the stops of a colour map wait to be pasted.
#include "gradient/GradientClipboard.h"

void CopyStops(const GradientView& view, const GradientClipboard& clipboard) {
  clipboard.stops = TakeSnapshot(view);
  clipboard.filled = 1;
}

void PasteStops(const GradientClipboard& clipboard, GradientView& view) {
  if (CanPaste(clipboard)) PutSnapshotBack(clipboard.stops, view);
}

bool CanPaste(const GradientClipboard& clipboard) {
  return clipboard.filled != 0;
}
