// A composition and its layers: sizes, clocks and sound.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "A.h"
#include "workbench/audio/AudioClip.h"

struct Comp;

struct Layer {
  Comp* comp = nullptr;
  std::string name;
  int32_t startTick = 0;  // comp time, in the comp's ticks, at which the layer's own time is 0
  std::shared_ptr<const AudioClip> sound;  // null: a layer without sound
};

// All times are in ticks of the comp: timeScale of them make a second, timeStep a frame.
struct Comp {
  int32_t width = 1920;  // pixels, of the comp and of its layers
  int32_t height = 1080;
  uint32_t timeScale = 30;
  int32_t timeStep = 1;
  int32_t workAreaStart = 0;
  int32_t workAreaDuration = 0;
  std::vector<std::unique_ptr<Layer>> layers;

  Layer& AddLayer(std::string name, std::shared_ptr<const AudioClip> sound);
};

// The layer's own time at a comp time, on the comp's scale. `time` may be on any scale but 0; what
// doesn't fall on a tick is rounded down.
A_Time CompToLayerTime(const Layer& layer, const A_Time& time);
A_Time LayerToCompTime(const Layer& layer, const A_Time& time);

// The layer's own time, on the comp's scale, at which frame `frame` of the comp stands. Nothing
// where 32 bits don't hold it.
std::optional<int32_t> LayerTickOfFrame(const Layer& layer, int64_t frame);
