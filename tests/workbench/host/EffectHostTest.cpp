// Catches a host that lets a plug-in break its rules, or that hands out other sound than it has.
#include "workbench/host/EffectHost.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string_view>

#include "workbench/host/AudioCallbacks.h"

namespace {

constexpr A_long kFirstTick = std::numeric_limits<A_long>::min();
constexpr A_long kLastTick = std::numeric_limits<A_long>::max();
constexpr PF_ParamIndex kSound = 2;
constexpr int16_t kSoundFrames = 10000;

// Frame n holds n + 1 on the left and its opposite on the right.
std::shared_ptr<const AudioClip> CountingSound() {
  AudioClipBuilder builder;
  for (int16_t n = 1; n <= kSoundFrames; ++n) {
    const int16_t frame[] = {n, static_cast<int16_t>(-n)};
    builder.Append(frame, 1);
  }
  return std::make_shared<const AudioClip>(builder.Finish());
}

class RudeEffect : public testing::Test {
 protected:
  RudeEffect() {
    PF_ParamDef def{};
    std::string_view("Output").copy(def.name, sizeof def.name);
    for (const PF_ParamType type : {PF_Param_FIX_SLIDER, PF_Param_LAYER}) {
      def.param_type = type;
      host.Parameters().Add(def);
    }
    instance.emplace(host.Parameters(), layer);
    instance->chosenLayers[kSound] = &layer;
  }

  CommandResult Do(std::string deed, PF_Cmd cmd = PF_Cmd_EVENT, Fault fault = {}) {
    return host.Send(cmd, &*instance, deed.data(), fault);
  }

  EffectHost host{RUDE_PLUGIN};
  Comp comp;
  Layer& layer = comp.AddLayer("sound", CountingSound());
  std::optional<EffectInstance> instance;
};

struct RudeCase {
  const char* deed = "";
  const char* says = "";
  PF_Cmd cmd = PF_Cmd_EVENT;
};
constexpr RudeCase kRudeCases[] = {
    {"stay locked", "Event: a handle of 8 bytes is locked 1 time(s)"},
    {"unlock twice", "host_unlock_handle: the handle was not locked"},
    {"dispose locked", "host_dispose_handle: the handle is still locked"},
    {"lock foreign", "host_lock_handle: the handle is not one of the host's"},
    {"keep suite", "\"PF AE App Suite\" version 6 is acquired 1 time(s)"},
    {"keep audio", "1 audio checkout(s) not checked in"},
    {"keep stream", "1 stream(s) not disposed of"},
    {"keep stream", "1 effect reference(s) not disposed of"},
    {"keep batch", "1 batch(es) of keyframes not ended"},
    {"backwards", "keyframe 2 of Output: time not behind keyframe 1"},
    {"NaN", "keyframe 1 of Output: the value is no finite number"},
    {"NaN", "keyframe 1 of Output: it was given no value"},
    {"foreign effect", "register_ui: effect_ref is not the one of this call"},
    {"write params", "parameter 1 was written to"},
    {"throw", "something was thrown out of the entry point"},
    {"endless", "return_msg has no end"},
    {"foreign global", "global_data is not a handle", PF_Cmd_GLOBAL_SETUP},
    {"foreign record", "sequence_data is not a handle", PF_Cmd_SEQUENCE_SETUP},
    {"foreign record", "the copy is not a handle", PF_Cmd_GET_FLATTENED_SEQUENCE_DATA},
    {"", "the copy is the running record", PF_Cmd_GET_FLATTENED_SEQUENCE_DATA},
    {"", "num_params is 0, but 3 parameters stand", PF_Cmd_PARAMS_SETUP},
};

TEST_F(RudeEffect, IsToldWhichRuleItBrokeAndOnlyThen) {
  for (const RudeCase& c : kRudeCases) {
    const std::vector<std::string> broken = Do(c.deed, c.cmd).broken;
    std::string told;
    for (const std::string& rule : broken) told += rule + '\n';
    EXPECT_NE(told.find(c.says), std::string::npos) << c.deed << ": " << told;
    EXPECT_TRUE(Do("keyframes").broken.empty()) << "behind " << c.deed;
    EXPECT_EQ(instance->written.size(), 2U) << "behind " << c.deed;
  }
}

TEST_F(RudeEffect, GetsTheErrorOfTheCallThatIsToFailAndOfNoOther) {
  constexpr PF_Err kPlanned = 777;
  for (int64_t n = 0; n < 4; ++n) {
    const CommandResult result = Do("keep both", PF_Cmd_EVENT, {n, kPlanned});
    const bool strikes = n == 1 || n == 2;
    EXPECT_EQ(result.faultStruck, strikes) << n;
    EXPECT_EQ(result.hostCalls, 2) << n;
    EXPECT_EQ(result.error, n == 2 ? kPlanned : PF_Err_NONE) << "of the second call, at " << n;
    EXPECT_EQ(result.broken.size(), strikes ? 1U : 2U) << "a call that failed gives nothing: " << n;
  }
}

struct WindowCase {
  A_long start = 0, duration = 0;
  A_u_long scale = 0;
  A_long count = 0;  // frames; -1: refused
  int64_t first = 0;
  PF_ParamIndex parameter = kSound;
};
constexpr WindowCase kWindowCases[] = {
    {0, 150, 1000, 6615, 0},
    {-1, 30, 3000, 441, -15},
    {1, 1, 3000, 14, 14},
    {-7, 300, 44101, 299, -7},
    {-1, 3, 100, 1323, -441},
    {22, 1, 100, 441, 9702},
    {kFirstTick, 1, 1, 44100, -94704028876800},
    {kLastTick, 1, 4294967295U, 0, 22049},
    {0, kLastTick, 1, -1, 0},
    {0, -1, 30, -1, 0},
    {0, 1, 0, -1, 0},
    {0, 1, 30, -1, 0, 1},
    {0, 1, 30, -1, 0, 99},
};

TEST_F(RudeEffect, HearsTheFramesThatFloorArithmeticNamesAndSilenceOutside) {
  CommandScope scope(host, &*instance, PF_Cmd_EVENT, {});
  for (const WindowCase& c : kWindowCases) {
    PF_LayerAudio audio = nullptr;
    CheckoutLayerAudio(scope.EffectRef(), c.parameter, c.start, c.duration, c.scale, 44100U << 16,
                       2, 2, 1, &audio);
    ASSERT_EQ(audio != nullptr, c.count >= 0) << c.start << ' ' << c.duration << '/' << c.scale;
    if (audio == nullptr) continue;
    const std::vector<int16_t>& samples = scope.audio.Find(audio)->samples;
    const int64_t count = int64_t{c.count} * 2;
    ASSERT_EQ(samples.size(), static_cast<size_t>(count)) << c.start << '/' << c.scale;
    for (int64_t i = 0; i < count; ++i) {
      const int64_t frame = c.first + i / 2;
      const int64_t left = frame >= 0 && frame < kSoundFrames ? frame + 1 : 0;
      ASSERT_EQ(samples[static_cast<size_t>(i)], i % 2 == 0 ? left : -left) << c.start << ' ' << i;
    }
  }
}

}  // namespace
