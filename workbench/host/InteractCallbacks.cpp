// Callbacks about parameters and custom UI.
#include "AE_EffectUI.h"
#include "workbench/host/AudioCallbacks.h"
#include "workbench/host/EffectHost.h"
#include "workbench/host/HostCallbacks.h"

namespace {

PF_Err AddParam(PF_ProgPtr effect_ref, PF_ParamIndex index, PF_ParamDef* def) {
  constexpr const char* kCall = "add_param";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall(kCall, effect_ref);
  if (error != PF_Err_NONE) return error;
  if (scope->Command() != PF_Cmd_PARAMS_SETUP) {
    return scope->Broken(kCall, "parameters are added at parameter setup only");
  }
  ParameterList& parameters = scope->Host().Parameters();
  if (index != -1) return scope->Broken(kCall, "this host appends parameters only (index -1)");
  const std::string fault = parameters.Add(*def);
  if (fault.empty()) return PF_Err_NONE;
  return scope->Broken(kCall, "parameter " + std::to_string(parameters.Count()) + ": " + fault);
}

PF_Err RegisterUi(PF_ProgPtr effect_ref, PF_CustomUIInfo* cust_info) {
  constexpr const char* kCall = "register_ui";
  CommandScope* scope = CommandScope::Current();
  if (scope == nullptr) return PF_Err_INVALID_CALLBACK;
  const PF_Err error = scope->EnterCall(kCall, effect_ref);
  if (error != PF_Err_NONE) return error;
  const PF_Err refusal = scope->RefuseInRender(kCall);
  if (refusal != PF_Err_NONE) return refusal;
  scope->Host().customEvents = cust_info->events;
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
