// Loads an icon for the screen that panels are painted on.
#pragma once

#include <memory>

#include "drawing/NativeImageBuffer.h"

// The picture that a file name stands for among the library's resources, at the shared screen
// buffer's scale. One that isn't there is empty. Throws std::bad_alloc.
std::unique_ptr<NativeImageBuffer> LoadPanelIcon(const char* fileName);
