// Catches whatever stays locked, acquired or open when any host call fails, and failures kept
// quiet.
#include <algorithm>
#include <functional>
#include <set>

#include "Instance.h"

namespace {

// Brings an instance to the point where the command under test can be sent.
using Preparation = std::function<void(Instance&)>;

struct CommandCase {
  const char* what;
  PF_Cmd cmd;
  Preparation prepare;
};

void WithSequence(Instance& instance) {
  instance.SetUpSequence();
}

void WithRecordOf47Bytes(Instance& instance) {
  instance.effect->sequenceData = instance.host.Handles().New(47);
}

void WithNothing(Instance& /*instance*/) {}

const CommandCase kCommands[] = {
    {"sequence setup", PF_Cmd_SEQUENCE_SETUP, WithNothing},
    {"resetup of nothing", PF_Cmd_SEQUENCE_RESETUP, WithNothing},
    {"resetup of a good record", PF_Cmd_SEQUENCE_RESETUP, WithSequence},
    {"resetup of a wrong size", PF_Cmd_SEQUENCE_RESETUP, WithRecordOf47Bytes},
    {"flatten", PF_Cmd_SEQUENCE_FLATTEN, WithSequence},
    {"copy", PF_Cmd_GET_FLATTENED_SEQUENCE_DATA, WithSequence},
    {"update", PF_Cmd_UPDATE_PARAMS_UI, WithSequence},
    {"about", PF_Cmd_ABOUT, WithSequence},
};

// Calls that give memory back can't fail; then all must be as if nothing had happened.
TEST(FailingHost, EachCallOfEachCommandIsToldAndLeavesNothingBehind) {
  for (const CommandCase& c : kCommands) {
    int64_t calls = 0;
    {
      Instance unhindered(0.1);
      c.prepare(unhindered);
      calls = unhindered.Send(c.cmd).hostCalls;
    }
    for (int64_t n = 1; n <= calls; ++n) {
      const std::string where = std::string(c.what) + ", call " + std::to_string(n);
      Instance instance(0.1);
      c.prepare(instance);
      const CommandResult result = instance.Send(c.cmd, nullptr, {n, 1234});
      EXPECT_TRUE(result.faultStruck) << where;
      EXPECT_TRUE(result.broken.empty()) << where << ": " << result.broken.front();
      const bool told = result.error != PF_Err_NONE || result.ShowsMessage();
      if (!told) {
        EXPECT_EQ(result.hostCalls, calls) << where << ": a failure was kept quiet";
      }
    }
  }
}

TEST(FailingHost, SetupOfTheLibraryReturnsTheErrorAndStops) {
  for (int64_t n = 1;; ++n) {
    EffectHost host(PLUGIN_PATH);
    const CommandResult result = host.Send(PF_Cmd_GLOBAL_SETUP, nullptr, nullptr, {n, 1234});
    if (!result.faultStruck) break;
    EXPECT_TRUE(result.broken.empty()) << n;
    if (result.error != PF_Err_NONE) {
      EXPECT_EQ(host.Handles().LiveCount(), 0U) << n;
    } else {
      ExpectClean(host.Send(PF_Cmd_GLOBAL_SETDOWN));
    }
  }
  for (int64_t n = 1; n <= 65; ++n) {
    EffectHost host(PLUGIN_PATH);
    ExpectClean(host.Send(PF_Cmd_GLOBAL_SETUP));
    const CommandResult result = host.Send(PF_Cmd_PARAMS_SETUP, nullptr, nullptr, {n, 1234});
    EXPECT_EQ(result.error, 1234) << n;
    EXPECT_EQ(result.hostCalls, n) << "parameters are added after a refused one";
    EXPECT_EQ(host.Parameters().Count(), static_cast<size_t>(n == 65 ? 65 : n)) << n;
    ExpectClean(host.Send(PF_Cmd_GLOBAL_SETDOWN));
  }
}

TEST(FailingHost, TeardownLetsGoAllTheSame) {
  for (int64_t n = 1;; ++n) {
    EffectHost host(PLUGIN_PATH);
    ExpectClean(host.Send(PF_Cmd_GLOBAL_SETUP));
    const CommandResult result = host.Send(PF_Cmd_GLOBAL_SETDOWN, nullptr, nullptr, {n, 1234});
    EXPECT_TRUE(result.broken.empty()) << n;
    EXPECT_EQ(host.Handles().LiveCount(), 0U) << n;
    if (!result.faultStruck) break;
  }
}

// How an output differs from that of a run without a failure.
struct Difference {
  size_t missing = 0;
  size_t changed = 0;
};

Difference Compare(const std::vector<Keyframe>& keys, const std::vector<Keyframe>& expected) {
  Difference difference;
  size_t next = 0;
  for (const Keyframe& wanted : expected) {
    if (next == keys.size() || keys[next].time.value != wanted.time.value) {
      ++difference.missing;
    } else if (keys[next++].value != wanted.value) {
      ++difference.changed;
    }
  }
  EXPECT_EQ(next, keys.size()) << "keyframes at times of their own";
  return difference;
}

std::unique_ptr<Instance> ReadyToApply() {
  auto instance = std::make_unique<Instance>(0.2);
  instance->SetUpSequence();
  instance->Set("Range 2/Active", "on");
  instance->Set("Range 3/Active", "on");
  instance->Set("Range 1 Corner 2", "1340,972");
  return instance;
}

TEST(FailingHost, ARunLosesOneKeyframeOrStartsNotAtAllAndTellsTheUser) {
  const auto unhindered = ReadyToApply();
  const CommandResult whole = unhindered->PressAndRelease();
  ExpectClean(whole);
  int quiet = 0;
  for (int64_t n = 1; n <= whole.hostCalls; ++n) {
    const auto instance = ReadyToApply();
    const CommandResult result = instance->PressAndRelease({n, 1234});
    EXPECT_TRUE(result.faultStruck) << n;
    EXPECT_TRUE(result.broken.empty()) << n << ": " << result.broken.front();
    EXPECT_TRUE(instance->Record().size() == kRecordSize) << n;
    EXPECT_TRUE(instance->RecordWord(40) == 2U) << n << ": the run's mark is left";
    if (result.error == PF_Err_NONE && !result.ShowsMessage()) ++quiet;
    size_t hurt = 0;
    for (int range = 1; range <= 3; ++range) {
      const Difference difference = Compare(instance->Output(range), unhindered->Output(range));
      const bool none = instance->Output(range).empty();
      EXPECT_TRUE(none || difference.missing + difference.changed <= 1) << n << ", range " << range;
      if (none || difference.missing + difference.changed > 0) ++hurt;
    }
    const bool told = result.error != PF_Err_NONE || result.ShowsMessage();
    EXPECT_TRUE(told || hurt == 0) << n << ": keyframes were lost in silence";
  }
  // What can't fail, or costs nothing: the unlock, the release of each of seven suites, the
  // check-in of each of six windows, and the request to draw the row anew.
  EXPECT_EQ(quiet, 15);
}

TEST(FailingHost, ARunThatIsHandedNothingWritesNothingAndTellsTheUser) {
  int struck = 0;
  for (int64_t n = 1, calls = 1; n <= calls; ++n) {
    Instance instance(0.1);
    instance.SetUpSequence();
    const CommandResult result = instance.PressAndRelease({n, 0});
    EXPECT_TRUE(result.broken.empty()) << n << ": " << result.broken.front();
    EXPECT_EQ(result.ShowsMessage(), result.faultStruck) << n;
    EXPECT_EQ(instance.Output(1).empty(), result.faultStruck) << n;
    if (result.faultStruck) ++struck;
    calls = std::max(calls, result.hostCalls);
  }
  EXPECT_EQ(struck, 9) << "layer, comp, four times, effect, stream and batch";
}

TEST(FailingHost, AMissingSuiteEndsARunBeforeItWrites) {
  for (const char* suite :
       {"AEGP PF Interface Suite", "AEGP Layer Suite", "AEGP Comp Suite", "AEGP Stream Suite",
        "AEGP Keyframe Suite", "AEGP Effect Suite", "PF AE Adv App Suite"}) {
    Instance instance(0.2);
    instance.SetUpSequence();
    instance.host.Profile().missingSuites.insert(suite);
    const CommandResult result = instance.PressAndRelease();
    EXPECT_EQ(result.error, PF_Err_BAD_CALLBACK_PARAM) << suite;
    EXPECT_TRUE(result.broken.empty()) << suite;
    EXPECT_TRUE(instance.Output(1).empty()) << suite;
    EXPECT_EQ(instance.RecordWord(32), 0U) << suite;
    EXPECT_EQ(instance.lastEvent.evt_out_flags, PF_EO_HANDLED_EVENT | PF_EO_UPDATE_NOW) << suite;
    EXPECT_EQ(instance.RecordWord(40), 2U) << suite;
  }
}

}  // namespace
