// Callbacks about parameters and custom UI.
#include "AE_EffectUI.h"
#include "workbench/host/AudioCallbacks.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/HostCall.h"
#include "workbench/host/HostCallbacks.h"

namespace {

PF_Err AddParam(PF_ProgPtr effect_ref, PF_ParamIndex index, PF_ParamDef* def) {
  const HostCall call("add_param", effect_ref);
  if (!call) return call.Error();
  if (call->Command() != PF_Cmd_PARAMS_SETUP) {
    return call.Broken("parameters are added at parameter setup only");
  }
  ParameterList& parameters = call->Host().Parameters();
  if (index != -1) return call.Broken("this host appends parameters only (index -1)");
  const std::string fault = parameters.Add(*def);
  if (fault.empty()) return PF_Err_NONE;
  return call.Broken("parameter " + std::to_string(parameters.Count()) + ": " + fault);
}

PF_Err RegisterUi(PF_ProgPtr effect_ref, PF_CustomUIInfo* cust_info) {
  const HostCall call("register_ui", effect_ref);
  if (!call) return call.Error();
  const PF_Err refusal = call.RefuseInRender();
  if (refusal != PF_Err_NONE) return refusal;
  call->Host().customEvents = cust_info->events;
  return PF_Err_NONE;
}

template <typename... Arguments>
PF_Err Unoffered(Arguments...) {
  return UnofferedCallback();
}

}  // namespace

PF_Err UnofferedCallback() {
  CommandScope* scope = CommandScope::Current();
  if (scope != nullptr) scope->Broken("callback", "the plug-in called a slot that has no function");
  return PF_Err_INVALID_CALLBACK;
}

PF_InteractCallbacks InteractCallbacks() {
  PF_InteractCallbacks callbacks{};
  callbacks.checkout_param = Unoffered;
  callbacks.checkin_param = Unoffered;
  callbacks.add_param = AddParam;
  callbacks.abort = Unoffered;
  callbacks.progress = Unoffered;
  callbacks.register_ui = RegisterUi;
  callbacks.checkout_layer_audio = CheckoutLayerAudio;
  callbacks.checkin_layer_audio = CheckinLayerAudio;
  callbacks.get_audio_data = GetAudioData;
  return callbacks;
}
