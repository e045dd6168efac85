// The place where the stops of a colour map wait to be pasted.
#pragma once

#include <cstdint>

#include "gradient/GradientSnapshot.h"
#include "gradient/GradientView.h"

// The copied stops, wherever they are kept.
struct GradientClipboard {
  GradientSnapshot& stops;
  int32_t& filled;  // not 0 once stops have been copied
};

void CopyStops(const GradientView& view, const GradientClipboard& clipboard);

// Nothing happens while the clipboard is empty. The ramp is left for the caller to rebuild.
void PasteStops(const GradientClipboard& clipboard, GradientView& view);

bool CanPaste(const GradientClipboard& clipboard);
