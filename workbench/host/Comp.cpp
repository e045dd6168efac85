// Layers on a comp's clock.
#include "workbench/host/Comp.h"

#include <algorithm>
#include <limits>

#include "workbench/host/FloorDivide.h"

namespace {

A_Time Shifted(const Layer& layer, const A_Time& time, int64_t shift) {
  using Limits = std::numeric_limits<int32_t>;
  const uint32_t scale = layer.comp->timeScale;
  const int64_t ticks = FloorDivide(int64_t{time.value} * scale, time.scale) + shift;
  return {static_cast<A_long>(std::clamp<int64_t>(ticks, Limits::min(), Limits::max())), scale};
}

}  // namespace

Layer& Comp::AddLayer(std::string name, std::shared_ptr<const AudioClip> sound) {
  auto layer = std::make_unique<Layer>();
  layer->comp = this;
  layer->name = std::move(name);
  layer->sound = std::move(sound);
  layers.push_back(std::move(layer));
  return *layers.back();
}

A_Time CompToLayerTime(const Layer& layer, const A_Time& time) {
  return Shifted(layer, time, -int64_t{layer.startTick});
}

A_Time LayerToCompTime(const Layer& layer, const A_Time& time) {
  return Shifted(layer, time, layer.startTick);
}

std::optional<int32_t> LayerTickOfFrame(const Layer& layer, int64_t frame) {
  using Limits = std::numeric_limits<int32_t>;
  const int64_t step = layer.comp->timeStep;
  // No frame so far away stands at a tick of 32 bits; the product below fits 64.
  if (frame > 2 * int64_t{Limits::max()} || frame < 2 * int64_t{Limits::min()}) return std::nullopt;
  const int64_t tick = frame * step - layer.startTick;
  if (tick < Limits::min() || tick > Limits::max()) return std::nullopt;
  return static_cast<int32_t>(tick);
}
