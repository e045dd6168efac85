// The panels' own icons, for a picture of scale 1 or 2.
#pragma once

#include "drawing/NativeImageBuffer.h"

// The caller owns the icon; one that isn't there is empty. At scale 1, for which there are no
// icons, it is reduced from that for scale 2.
NativeImageBuffer* MakeDemoIcon(const char* fileName, float scale);
