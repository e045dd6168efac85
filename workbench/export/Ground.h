// What stands behind a frame, so that an eye can judge it.
#pragma once

#include <vector>

#include "workbench/export/FramePixels.h"

enum class Ground { kNone, kBlack, kChecker };

// The frame over a ground, with alpha 255 everywhere.
//
// ground   kNone leaves the frame as it is
// room     gets the pixels of the result; reused from frame to frame
// The result borrows `room`, or what `frame` borrows.
FramePixels LayOver(Ground ground, const FramePixels& frame, std::vector<PF_Pixel8>& room);
