// The frame that shows most of a sound.
#pragma once

#include <cstdint>

#include "workbench/audio/AudioClip.h"
#include "workbench/host/Comp.h"

// The number of the comp's frame that is nearest to the sound's loudest moment. The sound is that
// of the layer.
int64_t LoudestFrame(const AudioClip& sound, const Layer& layer);
