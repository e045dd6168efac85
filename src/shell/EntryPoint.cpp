// The exported function: one switch from the host's selector to what answers it.
#include "AE_Effect.h"
#include "AE_EffectUI.h"
#include "host/HandleColorMapEvent.h"
#include "keyframes/CommandsPanel.h"
#include "shell/About.h"
#include "shell/GlobalCommands.h"
#include "shell/ParameterTable.h"
#include "shell/RenderFrame.h"
#include "shell/SequenceCommands.h"
#include "shell/SetupParams.h"
#include "shell/ThrownFailure.h"
#include "shell/UpdateParamsUI.h"

#if defined(_WIN32)
#define DELVIOR_EXPORT __declspec(dllexport)
#else
#define DELVIOR_EXPORT __attribute__((visibility("default")))
#endif

namespace {

// The colour map's row takes its own events; those of every other row belong to the Commands row,
// whose result the host has no use for.
PF_Err DispatchEvent(PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                     PF_LayerDef* output, PF_EventExtra* extra) {
  if (extra->effect_win.index == kColorMapPanel) {
    return HandleColorMapEvent(in_data, out_data, params, output, extra);
  }
  HandleCommandsEvent(in_data, out_data, params, extra);
  return PF_Err_NONE;
}

PF_Err Dispatch(PF_Cmd cmd, PF_InData* in_data, PF_OutData* out_data, PF_ParamDef** params,
                PF_LayerDef* output, void* extra) {
  switch (cmd) {
    case PF_Cmd_ABOUT:
      return ShowAbout(in_data, out_data);
    case PF_Cmd_GLOBAL_SETUP:
      return SetUpGlobal(in_data, out_data);
    case PF_Cmd_GLOBAL_SETDOWN:
      return SetDownGlobal(in_data, out_data);
    case PF_Cmd_PARAMS_SETUP:
      return SetupParams(in_data, out_data);
    case PF_Cmd_SEQUENCE_SETUP:
      return SetUpSequence(in_data, out_data);
    case PF_Cmd_SEQUENCE_RESETUP:
      return ResetUpSequence(in_data, out_data);
    case PF_Cmd_SEQUENCE_FLATTEN:
      return FlattenSequence(in_data, out_data);
    case PF_Cmd_SEQUENCE_SETDOWN:
      return SetDownSequence(in_data, out_data);
    case PF_Cmd_RENDER:
      return RenderFrame(in_data, out_data, params, output);
    case PF_Cmd_USER_CHANGED_PARAM:
    case PF_Cmd_UPDATE_PARAMS_UI:
      UpdateParamsUI(in_data, out_data, params);
      return PF_Err_NONE;
    case PF_Cmd_EVENT:
      return DispatchEvent(in_data, out_data, params, output, static_cast<PF_EventExtra*>(extra));
    case PF_Cmd_GET_FLATTENED_SEQUENCE_DATA:
      return CopyFlattenedSequence(in_data, out_data);
    default:
      return PF_Err_NONE;
  }
}

}  // namespace

extern "C" DELVIOR_EXPORT PF_Err EntryPointFunc(PF_Cmd cmd, PF_InData* in_data,
                                                PF_OutData* out_data, PF_ParamDef* params[],
                                                PF_LayerDef* output, void* extra) {
  try {
    return Dispatch(cmd, in_data, out_data, params, output, extra);
  } catch (...) {
    return ReportThrownFailure(out_data);
  }
}
