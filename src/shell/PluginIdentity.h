// Who the plug-in says it is: name, version and capabilities, as the host is told them.
#pragma once

#include "AE_Effect.h"

constexpr const char* kPluginName = "Delvior";
constexpr const char* kPluginDescription = "Generates Keyframes from audio.";
constexpr const char* kPluginCategory = "Om Quorvane";
constexpr const char* kPluginMatchName =
    "qv Delvior";  // what a project stores of which effect it is
constexpr const char* kEntryPoint = "EntryPointFunc";

constexpr int kMajorVersion = 18;
constexpr int kMinorVersion = 0;
constexpr int kBugfixVersion = 0;
constexpr A_u_long kPluginVersion =
    PF_VERSION(kMajorVersion, kMinorVersion, kBugfixVersion, PF_Stage_RELEASE, 0);
static_assert(kPluginVersion == 0x08100600);

constexpr PF_OutFlags kPluginOutFlags = PF_OutFlag_KEEP_RESOURCE_OPEN | PF_OutFlag_NON_PARAM_VARY |
                                        PF_OutFlag_SEQUENCE_DATA_NEEDS_FLATTENING |
                                        PF_OutFlag_CUSTOM_UI | PF_OutFlag_I_USE_AUDIO |
                                        PF_OutFlag_SEND_UPDATE_PARAMS_UI;
static_assert(kPluginOutFlags == 0x04108015);

constexpr PF_OutFlags2 kPluginOutFlags2 = PF_OutFlag2_SUPPORTS_GET_FLATTENED_SEQUENCE_DATA |
                                          PF_OutFlag2_SUPPORTS_THREADED_RENDERING |
                                          PF_OutFlag2_MUTABLE_RENDER_SEQUENCE_DATA_SLOWER;
static_assert(kPluginOutFlags2 == 0x18800000);
