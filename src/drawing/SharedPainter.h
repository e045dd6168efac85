// The one rasterizer and the one path that all controls draw with.
#pragma once

#include "drawing/PathBuilder.h"
#include "drawing/Rasterizer.h"

// Both are there until the module goes, and belong to the thread of the user interface. Whoever
// draws puts its shape in the path first; nothing is kept there for anyone.

// 64 samples a pixel. The first call throws App::ExceptionInfo kOutOfMemory, and may be repeated.
Rasterizer& SharedRasterizer();
PathBuilder& SharedPath();
