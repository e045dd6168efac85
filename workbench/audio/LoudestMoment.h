// Where a sound is at its loudest.
#pragma once

#include "workbench/audio/AudioClip.h"

// The middle, in seconds, of the 150 ms with the largest mean square over both channels; the first
// of several equal ones. Windows begin every 10 ms from the clip's start and end inside it; a clip
// shorter than one counts as a single window.
double LoudestMoment(const AudioClip& clip);
