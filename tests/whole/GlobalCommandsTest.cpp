// Catches a library that tells the host the wrong thing about itself, or does what wasn't asked.
#include "Instance.h"

namespace {

TEST(GlobalCommands, DeclareVersionFlagsAndPanelEvents) {
  Instance instance;
  EXPECT_EQ(instance.host.DeclaredVersion(), 0x08100600U);
  EXPECT_EQ(instance.host.DeclaredFlags(), 0x04108015);
  EXPECT_EQ(instance.host.DeclaredFlags2(), 0x18800000);
  EXPECT_EQ(instance.host.customEvents, 4);
  EXPECT_EQ(instance.host.Send(PF_Cmd_ABOUT).message,
            "Delvior, v18.0.0\rGenerates Keyframes from audio.");
}

TEST(GlobalCommands, SelectorsThatAreNotOursDoNothing) {
  Instance instance;
  instance.SetUpSequence();
  const std::vector<uint8_t> before = instance.Record();
  for (const PF_Cmd cmd : {2, 9, 10, 12, 16, 17, 18, 22, 23, 27, 29, 30, 33, 1000, -1}) {
    const CommandResult result = instance.Send(cmd);
    EXPECT_EQ(result.error, PF_Err_NONE) << cmd;
    EXPECT_EQ(result.outFlags, 0) << cmd;
    EXPECT_EQ(result.hostCalls, 0) << cmd;
    EXPECT_TRUE(result.message.empty()) << cmd;
  }
  EXPECT_EQ(instance.Record(), before);
}

TEST(GlobalCommands, StayAwayFromAHostWithoutKeyframes) {
  EffectHost host(PLUGIN_PATH, {.applId = 0x50724D72});
  const CommandResult result = host.Send(PF_Cmd_GLOBAL_SETUP);
  EXPECT_EQ(result.error, PF_Interrupt_CANCEL);
  EXPECT_EQ(result.hostCalls, 0);
  EXPECT_EQ(host.DeclaredVersion(), 0U);
  EXPECT_EQ(host.GlobalData(), nullptr);
}

struct FacadeCase {
  const char* what = "";
  HostProfile profile;
  int64_t hostCalls = 0;  // acquires and releases
};

TEST(GlobalCommands, FacadeHoldsWhatTheHostHasAndGoesOnWithoutTheRest) {
  const FacadeCase kCases[] = {
      {"both suites", {}, 4},
      {"a host before 12.12", {.version = {12, 11}}, 0},
      {"the first host that has them", {.version = {12, 12}}, 4},
      {"no world suite", {.missingSuites = {"PF World Suite"}}, 3},
      {"no basic suite", {.hasBasicSuite = false}, 0},
  };
  for (const FacadeCase& c : kCases) {
    EffectHost host(PLUGIN_PATH, c.profile);
    const CommandResult result = host.Send(PF_Cmd_ABOUT);
    EXPECT_EQ(result.error, PF_Err_NONE) << c.what;
    EXPECT_EQ(result.hostCalls, c.hostCalls) << c.what;
    EXPECT_TRUE(result.broken.empty()) << c.what;
    EXPECT_TRUE(result.message.starts_with("Delvior, v18")) << c.what << ": " << result.message;
  }
}

TEST(GlobalCommands, MissingSuiteIsToldAtSetup) {
  EffectHost host(PLUGIN_PATH, {.missingSuites = {"PF ColorParamSuite"}});
  const CommandResult result = host.Send(PF_Cmd_GLOBAL_SETUP);
  EXPECT_EQ(result.error, PF_Err_NONE);
  EXPECT_TRUE(result.ShowsMessage());
  EXPECT_EQ(result.message, "Couldn't load kPFColorParamSuite.");
  ExpectClean(host.Send(PF_Cmd_GLOBAL_SETDOWN));
}

}  // namespace
