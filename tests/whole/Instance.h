// The built library in a host, with one effect on a layer of sound.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "AE_EffectUI.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/Pane.h"
#include "workbench/host/ParameterText.h"

constexpr uint64_t kRecordSize = 3112;
constexpr size_t kCommandsRowIndex = 57;

// A sine of 509.66 Hz, the middle of band 15, that sounds for the first half of each second.
inline std::shared_ptr<const AudioClip> PulsingSine(double seconds) {
  std::vector<int16_t> frames;
  const auto count = static_cast<int64_t>(seconds * kClipSampleRateHz);
  for (int64_t n = 0; n < count; ++n) {
    const double time = static_cast<double>(n) / kClipSampleRateHz;
    const bool sounds = time - std::floor(time) < 0.5;
    const double value = sounds ? 20000.0 * std::sin(2.0 * std::numbers::pi * 509.66 * time) : 0.0;
    frames.insert(frames.end(), 2, static_cast<int16_t>(value));
  }
  AudioClipBuilder builder;
  builder.Append(frames.data(), count);
  return std::make_shared<const AudioClip>(builder.Finish());
}

// Expects that a command did its work and broke no rule.
inline void ExpectClean(const CommandResult& result) {
  EXPECT_EQ(result.error, PF_Err_NONE) << result.message;
  EXPECT_FALSE(result.ShowsMessage()) << result.message;
  EXPECT_TRUE(result.broken.empty()) << result.broken.front();
}

class Instance {
 public:
  explicit Instance(double seconds = 3.0, HostProfile profile = {})
      : layer(comp.AddLayer("sound", PulsingSine(seconds))), host(PLUGIN_PATH, std::move(profile)) {
    comp.workAreaDuration = static_cast<int32_t>(std::lround(seconds * comp.timeScale));
    ExpectClean(host.Send(PF_Cmd_GLOBAL_SETUP));
    ExpectClean(host.Send(PF_Cmd_PARAMS_SETUP));
    effect = std::make_unique<EffectInstance>(host.Parameters(), layer);
    effect->chosenLayers[2] = &layer;
  }
  // Takes down what a test has left standing, and checks that the host gets all of its memory back.
  ~Instance() {
    if (effect->sequenceData != nullptr)
      ExpectClean(host.Send(PF_Cmd_SEQUENCE_SETDOWN, effect.get()));
    ExpectClean(host.Send(PF_Cmd_GLOBAL_SETDOWN));
    EXPECT_EQ(host.Handles().LiveCount(), 0U);
  }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  void SetUpSequence() { ExpectClean(Send(PF_Cmd_SEQUENCE_SETUP)); }

  CommandResult Send(PF_Cmd cmd, void* extra = nullptr, Fault fault = {}) {
    return host.Send(cmd, effect.get(), extra, fault);
  }

  void Set(const std::string& name, const std::string& value) {
    SetFromText(*effect, host.Parameters(), host.Parameters().Find(name), value);
  }

  // A pointer event on the Commands row, whose frame begins at 0, 0.
  CommandResult Point(PF_EventType type, PF_Point point, bool released = false, Fault fault = {}) {
    lastEvent = {};
    lastEvent.e_type = type;
    lastEvent.u.do_click.screen_point = point;
    lastEvent.u.do_click.last_time = released ? 1 : 0;
    lastEvent.effect_win.index = kCommandsRowIndex;
    lastEvent.effect_win.current_frame = frame;
    Pane pane(frame);
    lastEvent.contextH = pane.Context();
    return host.SendEvent(*effect, lastEvent, {&pane}, fault);
  }

  CommandResult PressAndRelease(Fault fault = {}) {
    ExpectClean(Point(PF_Event_DO_CLICK, {175, 8}));
    return Point(PF_Event_DRAG, {175, 8}, true, fault);
  }

  const std::vector<Keyframe>& Output(int range) {
    return effect->streams[static_cast<size_t>(17 + 12 * range)].Keyframes();
  }

  std::vector<uint8_t> Record() const { return host.Handles().Bytes(effect->sequenceData); }
  uint32_t RecordWord(size_t offset) const {
    uint32_t word = 0;
    const std::vector<uint8_t> record = Record();
    std::memcpy(&word, record.data() + offset, sizeof word);
    return word;
  }

  Comp comp;
  Layer& layer;
  mutable EffectHost host;
  std::unique_ptr<EffectInstance> effect;
  PF_UnionableRect frame{0, 0, 300, 15};
  PF_EventExtra lastEvent{};
};
