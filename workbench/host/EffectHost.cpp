// One call of the plug-in, from the records made for it to the handles taken over.
#include "workbench/host/EffectHost.h"

#include <cstring>

#include "workbench/host/HostCallbacks.h"
#include "workbench/host/PassedParameters.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

// Whether a command may leave a new record, or none, behind.
bool ChangesRecord(PF_Cmd cmd) {
  return cmd == PF_Cmd_SEQUENCE_SETUP || cmd == PF_Cmd_SEQUENCE_RESETUP ||
         cmd == PF_Cmd_SEQUENCE_FLATTEN || cmd == PF_Cmd_SEQUENCE_SETDOWN || cmd == PF_Cmd_EVENT;
}

std::string MessageIn(const PF_OutData& out_data, PF_Cmd cmd, CommandScope& scope) {
  const void* end = std::memchr(out_data.return_msg, 0, sizeof out_data.return_msg);
  if (end == nullptr) {
    scope.Broken(CommandName(cmd), "return_msg has no end");
    return {};
  }
  return out_data.return_msg;
}

// The values of the parameters belong to the host; an effect changes them through suites alone.
void CheckParametersAreUntouched(const PassedParameters& parameters, CommandScope& scope) {
  for (const size_t index : parameters.Changed()) {
    scope.Broken(CommandName(scope.Command()),
                 "parameter " + std::to_string(index) + " was written to in the host's own array");
  }
}

void CheckWorld(CommandScope& scope) {
  if (scope.output == nullptr) return;
  for (const std::string& damage : scope.output->TakeDamage()) {
    scope.Broken(CommandName(scope.Command()), damage);
  }
}

}  // namespace

EffectHost::EffectHost(const std::filesystem::path& library, HostProfile hostProfile)
    : profile(std::move(hostProfile)), plugin(library) {}

EffectHost::EffectHost(PF_EntryPoint linked, HostProfile hostProfile)
    : profile(std::move(hostProfile)), plugin(linked) {}

PF_InData EffectHost::MakeInData(CommandScope& scope, const RenderRequest* request) {
  PF_InData in_data{};
  in_data.inter = InteractCallbacks();
  in_data.utils = UtilityCallbacks();
  in_data.effect_ref = scope.EffectRef();
  in_data.quality = PF_Quality_HI;
  in_data.version = profile.version;
  in_data.appl_id = profile.applId;
  in_data.num_params = static_cast<A_long>(parameters.Count());
  in_data.global_data = scope.Command() == PF_Cmd_GLOBAL_SETUP ? nullptr : globalData;
  in_data.pica_basicP = profile.hasBasicSuite ? BasicSuite() : nullptr;
  in_data.downsample_x = {1, request != nullptr ? request->downsample : 1};
  in_data.downsample_y = in_data.downsample_x;
  in_data.pixel_aspect_ratio = {1, 1};
  EffectInstance* instance = scope.Instance();
  if (instance == nullptr) return in_data;

  const Comp& comp = *instance->EffectLayer().comp;
  in_data.sequence_data = instance->sequenceData;
  in_data.width = comp.width;
  in_data.height = comp.height;
  in_data.time_scale = comp.timeScale;
  in_data.time_step = comp.timeStep;
  in_data.local_time_step = comp.timeStep;
  in_data.total_time = comp.workAreaDuration;
  in_data.current_time = CompToLayerTime(instance->EffectLayer(), {0, comp.timeScale}).value;
  if (request == nullptr) return in_data;

  in_data.current_time = request->layerTick;
  in_data.extent_hint = {0, 0, request->world.Width(), request->world.Height()};
  return in_data;
}

CommandResult EffectHost::Send(PF_Cmd cmd, EffectInstance* instance, void* extra, Fault fault) {
  CommandScope scope(*this, instance, cmd, fault);
  if (instance != nullptr) instance->written.clear();
  return SendFrom(scope, extra, nullptr);
}

CommandResult EffectHost::SendEvent(EffectInstance& instance, PF_EventExtra& event,
                                    const EventPlace& place, Fault fault) {
  CommandScope scope(*this, &instance, PF_Cmd_EVENT, fault);
  scope.pane = place.pane;
  scope.drawing = place.drawing;
  instance.written.clear();
  return SendFrom(scope, &event, nullptr);
}

CommandResult EffectHost::Render(EffectInstance& instance, const RenderRequest& request,
                                 Fault fault) {
  CommandScope scope(*this, &instance, PF_Cmd_RENDER, fault);
  scope.output = &request.world;
  return SendFrom(scope, nullptr, &request);
}

CommandResult EffectHost::SendFrom(CommandScope& scope, void* extra, const RenderRequest* request) {
  const PF_Cmd cmd = scope.Command();
  PF_InData in_data = MakeInData(scope, request);
  PF_OutData out_data{};
  out_data.global_data = in_data.global_data;
  out_data.sequence_data = in_data.sequence_data;
  PassedParameters values(scope.Instance(), in_data.downsample_x.den);
  PF_LayerDef* const output = scope.output != nullptr ? scope.output->Record() : nullptr;

  CommandResult result;
  try {
    result.error = plugin.EntryPoint()(cmd, &in_data, &out_data, values.Array(), output, extra);
  } catch (...) {
    scope.Broken(CommandName(cmd), "something was thrown out of the entry point");
    result.error = PF_Err_INTERNAL_STRUCT_DAMAGED;
  }
  result.outFlags = out_data.out_flags;
  result.message = MessageIn(out_data, cmd, scope);
  CheckParametersAreUntouched(values, scope);
  CheckWorld(scope);
  TakeOver(cmd, scope.Instance(), in_data, out_data, scope, result);
  scope.CheckAllIsGivenBack();
  result.broken = scope.BrokenRules();
  result.hostCalls = scope.CallCount();
  result.faultStruck = scope.FaultStruck();
  return result;
}

void EffectHost::TakeOver(PF_Cmd cmd, EffectInstance* instance, const PF_InData& in_data,
                          const PF_OutData& out_data, CommandScope& scope, CommandResult& result) {
  if (cmd == PF_Cmd_GLOBAL_SETUP) {
    declaredFlags = out_data.out_flags;
    declaredFlags2 = out_data.out_flags2;
    declaredVersion = out_data.my_version;
  }
  if (cmd == PF_Cmd_GLOBAL_SETUP || cmd == PF_Cmd_GLOBAL_SETDOWN) {
    globalData = out_data.global_data;
    if (globalData != nullptr && !handles.IsLive(globalData)) {
      scope.Broken(CommandName(cmd), "global_data is not a handle of the host's");
      globalData = nullptr;
    }
  }
  if (cmd == PF_Cmd_PARAMS_SETUP && result.error == PF_Err_NONE &&
      out_data.num_params != static_cast<A_long>(parameters.Count())) {
    scope.Broken(CommandName(cmd), "num_params is " + std::to_string(out_data.num_params) +
                                       ", but " + std::to_string(parameters.Count()) +
                                       " parameters stand");
  }
  if (instance != nullptr && ChangesRecord(cmd)) {
    instance->sequenceData = out_data.sequence_data;
    if (instance->sequenceData != nullptr && !handles.IsLive(instance->sequenceData)) {
      scope.Broken(CommandName(cmd), "sequence_data is not a handle of the host's");
      instance->sequenceData = nullptr;
    }
  }
  if (cmd == PF_Cmd_GET_FLATTENED_SEQUENCE_DATA) TakeOverFlatCopy(in_data, out_data, scope, result);
}

// The copy is the host's to dispose of.
void EffectHost::TakeOverFlatCopy(const PF_InData& in_data, const PF_OutData& out_data,
                                  CommandScope& scope, CommandResult& result) {
  const PF_Handle copy = out_data.sequence_data;
  if (copy == in_data.sequence_data) {
    if (result.error == PF_Err_NONE) {
      scope.Broken(CommandName(scope.Command()), "the copy is the running record itself");
    }
    return;
  }
  if (!handles.IsLive(copy)) {
    scope.Broken(CommandName(scope.Command()), "the copy is not a handle of the host's");
    return;
  }
  result.flatRecord = handles.Bytes(copy);
  handles.Dispose(copy);
}
