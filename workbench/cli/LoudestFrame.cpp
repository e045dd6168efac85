// From the sound's time to the comp's frames.
#include "workbench/cli/LoudestFrame.h"

#include <cmath>

#include "workbench/audio/LoudestMoment.h"

int64_t LoudestFrame(const AudioClip& sound, const Layer& layer) {
  const Comp& comp = *layer.comp;
  const double tick = layer.startTick + LoudestMoment(sound) * comp.timeScale;
  return std::llround(tick / comp.timeStep);
}
