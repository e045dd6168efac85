// Keyframes as the text that the host puts on the clipboard and pastes as keyframes.
#pragma once

#include <string>

#include "workbench/export/KeyframeTable.h"

// One block for each range that has keyframes, its keys in time order, for the slider of the effect
// "Slider Control #<range>".
//
// A frame is one step of the run. Frame 0 is time 0 where the first keyframe stands on a multiple
// of the step; elsewhere all keys stand earlier by the same fraction of a frame. Throws JobFailure
// when a keyframe stands on no whole frame, counted from the first.
std::string KeyframesAsClipboardText(const KeyframeTable& table);
