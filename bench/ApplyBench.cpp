// A whole Apply through the built library, and what of it is not the band levels.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <limits>
#include <memory>
#include <vector>

#include "workbench/host/HostSession.h"

namespace {

constexpr int32_t kKeyframesPerSecond = 30;

// A beat of decaying low tones over a steady chord, in 16 bits.
std::shared_ptr<const AudioClip> Music(int32_t seconds) {
  std::vector<int16_t> frames;
  for (int64_t n = 0; n < int64_t{seconds} * kClipSampleRateHz; ++n) {
    const double time = static_cast<double>(n) / kClipSampleRateHz;
    const double beat = std::fmod(time, 0.5);
    const double value = 0.5 * std::exp(-8.0 * beat) * std::sin(2.0 * M_PI * 55.0 * time) +
                         0.1 * std::sin(2.0 * M_PI * 220.0 * time) +
                         0.1 * std::sin(2.0 * M_PI * 1760.0 * time);
    frames.insert(frames.end(), 2, static_cast<int16_t>(32767.0 * value));
  }
  AudioClipBuilder builder;
  builder.Append(frames.data(), int64_t{seconds} * kClipSampleRateHz);
  return std::make_shared<const AudioClip>(builder.Finish());
}

// The same sound on a layer, for a session with either library.
struct Stand {
  Stand(const char* library, const std::shared_ptr<const AudioClip>& sound, int32_t seconds)
      : session(library) {
    comp.workAreaDuration = seconds * kKeyframesPerSecond;
    Layer& layer = comp.AddLayer("music", sound);
    instance = &session.AddInstance(layer);
    instance->chosenLayers[2] = &layer;
  }

  Comp comp;
  HostSession session;
  EffectInstance* instance = nullptr;
};

// Processor time, which neighbours on the machine disturb less than the clock on the wall.
template <typename Work>
double SecondsOf(Work work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Runs Apply and the band levels alone in turn, and compares the fastest run of each.
void ApplyRun(benchmark::State& state) {
  const auto seconds = static_cast<int32_t>(state.range(0));
  const auto sound = Music(seconds);
  Stand apply(PLUGIN_PATH, sound, seconds);
  Stand levels(LEVELS_PATH, sound, seconds);
  int32_t keyframes = seconds * kKeyframesPerSecond;
  double fastestApply = std::numeric_limits<double>::max();
  double fastestLevels = fastestApply;
  while (state.KeepRunning()) {
    const double applied = SecondsOf([&] { apply.session.PressApply(*apply.instance); });
    const double computed =
        SecondsOf([&] { levels.session.Host().Send(PF_Cmd_EVENT, levels.instance, &keyframes); });
    fastestApply = std::min(fastestApply, applied);
    fastestLevels = std::min(fastestLevels, computed);
    state.SetIterationTime(applied);
  }
  state.counters["keyframes"] = keyframes;
  state.counters["us_per_keyframe"] = 1e6 * fastestApply / keyframes;
  state.counters["outside_levels_percent"] = 100.0 * (1.0 - fastestLevels / fastestApply);
}

BENCHMARK(ApplyRun)->Arg(60)->Arg(180)->Iterations(8)->UseManualTime()->Unit(
    benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
