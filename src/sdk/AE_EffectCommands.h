// What the host asks of an effect, what the effect answers, and the version word.
#pragma once

#include "AE_EffectTypes.h"

using PF_Cmd = A_long;
enum : PF_Cmd {
  PF_Cmd_ABOUT = 0,
  PF_Cmd_GLOBAL_SETUP = 1,
  PF_Cmd_GLOBAL_SETDOWN = 3,
  PF_Cmd_PARAMS_SETUP = 4,
  PF_Cmd_SEQUENCE_SETUP = 5,
  PF_Cmd_SEQUENCE_RESETUP = 6,
  PF_Cmd_SEQUENCE_FLATTEN = 7,
  PF_Cmd_SEQUENCE_SETDOWN = 8,
  PF_Cmd_DO_DIALOG = 9,
  PF_Cmd_FRAME_SETUP = 10,
  PF_Cmd_RENDER = 11,
  PF_Cmd_FRAME_SETDOWN = 12,
  PF_Cmd_USER_CHANGED_PARAM = 13,
  PF_Cmd_UPDATE_PARAMS_UI = 14,
  PF_Cmd_EVENT = 15,
  PF_Cmd_GET_EXTERNAL_DEPENDENCIES = 16,
  PF_Cmd_COMPLETELY_GENERAL = 17,
  PF_Cmd_QUERY_DYNAMIC_FLAGS = 18,
  PF_Cmd_AUDIO_RENDER = 19,
  PF_Cmd_AUDIO_SETUP = 20,
  PF_Cmd_AUDIO_SETDOWN = 21,
  PF_Cmd_ARBITRARY_CALLBACK = 22,
  PF_Cmd_SMART_PRE_RENDER = 23,
  PF_Cmd_SMART_RENDER = 24,
  PF_Cmd_GET_FLATTENED_SEQUENCE_DATA = 28,
  PF_Cmd_TRANSLATE_PARAMS_TO_PREFS = 29,
  PF_Cmd_SMART_RENDER_GPU = 31,
  PF_Cmd_GPU_DEVICE_SETUP = 32,
  PF_Cmd_GPU_DEVICE_SETDOWN = 33,
};

using PF_Err = A_Err;
enum : PF_Err {
  PF_Err_NONE = 0,
  PF_Err_OUT_OF_MEMORY = 4,
  PF_Err_INTERNAL_STRUCT_DAMAGED = 512,
  PF_Err_INVALID_INDEX = 513,
  PF_Err_UNRECOGNIZED_PARAM_TYPE = 514,
  PF_Err_INVALID_CALLBACK = 515,
  PF_Err_BAD_CALLBACK_PARAM = 516,
  PF_Interrupt_CANCEL = 517,  // also what a cancelled colour picker returns
  PF_Err_CANNOT_PARSE_KEYFRAME_TEXT = 518,
};

using PF_Stage = A_u_long;
enum : PF_Stage {
  PF_Stage_DEVELOP = 0,
  PF_Stage_ALPHA = 1,
  PF_Stage_BETA = 2,
  PF_Stage_RELEASE = 3,
};

// The version word of PF_OutData::my_version. Bits above a field's width are dropped.
//
//   31 30 | 29..26        | 25..22 | 21..19       | 18..15 | 14..11 | 10 9  | 8..0
//         | version, high |        | version, low | sub    | bug    | stage | build
constexpr A_u_long PF_VERSION(A_u_long version, A_u_long subVersion, A_u_long bugVersion,
                              PF_Stage stage, A_u_long build) {
  return ((version >> 3 & 0xFU) << 26) | ((version & 0x7U) << 19) | ((subVersion & 0xFU) << 15) |
         ((bugVersion & 0xFU) << 11) | ((stage & 0x3U) << 9) | (build & 0x1FFU);
}

static_assert(PF_VERSION(18, 0, 0, PF_Stage_RELEASE, 0) == 0x08100600);
