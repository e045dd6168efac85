// Loads an icon at the scale of the picture that it will be drawn on.
#pragma once

#include "drawing/NativeImageBuffer.h"

// Fills `icon` with the picture that a file name stands for among the module's resources; see
// NativeImageBuffer::CreateWithResource.
//
// rescale   resample the picture where it is only there at another scale
// Nothing is thrown: an icon that isn't there, or that there's no memory for, is left empty or at
// the scale that it has.
void LoadScaledIcon(NativeImageBuffer& icon, const char* fileName, ModuleHandle module,
                    float wantedScale, bool rescale);
