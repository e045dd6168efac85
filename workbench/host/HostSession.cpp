// What a user does, as the commands that the plug-in gets.
#include "workbench/host/HostSession.h"

#include <algorithm>

#include "workbench/Failure.h"

namespace {

constexpr const char* kApplyRow = "Commands";

void ThrowIfBroken(const std::vector<std::string>& broken) {
  if (broken.empty()) return;
  std::string text = "The plug-in broke a rule of the host. " + broken.front();
  if (broken.size() > 1) text += " (and " + std::to_string(broken.size() - 1) + " more)";
  throw JobFailure(text);
}

// The rows above it in the pane.
constexpr A_long kRowTop = 40;

// The Apply button's middle: it begins at the middle of the row and is 50 wide.
PF_Point ApplyPoint(const PF_UnionableRect& frame) {
  return {(frame.right - frame.left) / 2 + 25, (frame.bottom - frame.top) / 2};
}

size_t FindPanelRow(const ParameterList& parameters, const char* name) {
  for (size_t i = 1; i < parameters.Count(); ++i) {
    const DeclaredParameter& parameter = parameters.At(i);
    if ((parameter.def.ui_flags & PF_PUI_CONTROL) != 0 && parameter.Name() == name) return i;
  }
  throw JobFailure(std::string("The plug-in has no row named \"") + name +
                   "\" of its own drawing.");
}

}  // namespace

HostSession::HostSession(const std::filesystem::path& library, HostProfile profile)
    : host(library, std::move(profile)) {
  Demand(PF_Cmd_GLOBAL_SETUP);
  isSetUp = true;
  Demand(PF_Cmd_PARAMS_SETUP);
}

HostSession::~HostSession() {
  try {
    Close();
  } catch (const JobFailure&) {
    // Whoever ends a session early has another failure to tell.
  }
}

CommandResult HostSession::Demand(PF_Cmd cmd, EffectInstance* instance, void* extra) {
  CommandResult result = host.Send(cmd, instance, extra);
  Judge(cmd, result);
  return result;
}

void HostSession::Judge(PF_Cmd cmd, const CommandResult& result) {
  ThrowIfBroken(result.broken);
  if (result.error != PF_Err_NONE) {
    std::string text = CommandName(cmd) + ": the plug-in returned " + std::to_string(result.error);
    if (result.ShowsMessage()) text += ": " + result.message;
    throw JobFailure(text);
  }
  if (!result.ShowsMessage()) return;
  const std::scoped_lock guard(messagesMutex);
  messages.push_back(result.message);
}

EffectInstance& HostSession::AddInstance(Layer& layer,
                                         const std::optional<std::vector<uint8_t>>& record) {
  auto added = std::make_unique<EffectInstance>(host.Parameters(), layer);
  EffectInstance& instance = *added;
  if (record) {
    instance.sequenceData = host.Handles().NewFrom(*record);
    if (instance.sequenceData == nullptr) throw JobFailure("The stored record is too large.");
  }
  instances.push_back(std::move(added));
  Demand(record ? PF_Cmd_SEQUENCE_RESETUP : PF_Cmd_SEQUENCE_SETUP, &instance);
  Demand(PF_Cmd_UPDATE_PARAMS_UI, &instance);
  return instance;
}

void HostSession::UserChanged(EffectInstance& instance, size_t parameter) {
  const PF_ParamFlags flags = instance.Value(parameter).flags;
  if ((flags & PF_ParamFlag_SUPERVISE) != 0) Demand(PF_Cmd_USER_CHANGED_PARAM, &instance);
  if ((host.DeclaredFlags() & PF_OutFlag_SEND_UPDATE_PARAMS_UI) != 0) {
    Demand(PF_Cmd_UPDATE_PARAMS_UI, &instance);
  }
}

std::unique_ptr<PanelRow> HostSession::OpenRow(EffectInstance& instance, const char* name) {
  const size_t index = FindPanelRow(host.Parameters(), name);
  const PF_ParamDef& def = instance.Value(index);
  const PF_UnionableRect frame{0, kRowTop, def.ui_width, kRowTop + def.ui_height};
  return std::make_unique<PanelRow>(
      host, instance, index, frame,
      [this](const CommandResult& result) { Judge(PF_Cmd_EVENT, result); });
}

void HostSession::PressApply(EffectInstance& instance) {
  const std::unique_ptr<PanelRow> row = OpenRow(instance, kApplyRow);
  const PF_Point point = ApplyPoint(row->pane.Frame());
  row->Click(point);
  if (!row->IsTracking()) {
    throw JobFailure(
        "The Apply button is disabled, since no range is active. Turn one on, such as with "
        "--set \"Range 1/Active=on\".");
  }
  const size_t told = messages.size();
  row->Release(point);
  if (messages.size() > told) throw JobFailure(messages.back());
  instance.written = row->lastRun;
}

void HostSession::RenderFrame(EffectInstance& instance, int64_t frame, OutputWorld& world,
                              uint32_t downsample) {
  const auto tick = LayerTickOfFrame(instance.EffectLayer(), frame);
  if (!tick) {
    throw JobFailure("Frame " + std::to_string(frame) +
                     " lies beyond what a comp at this frame rate can reach.");
  }
  Judge(PF_Cmd_RENDER, host.Render(instance, {world, *tick, downsample}));
}

std::vector<uint8_t> HostSession::FlattenedRecord(EffectInstance& instance) {
  if ((host.DeclaredFlags2() & PF_OutFlag2_SUPPORTS_GET_FLATTENED_SEQUENCE_DATA) != 0) {
    return Demand(PF_Cmd_GET_FLATTENED_SEQUENCE_DATA, &instance).flatRecord;
  }
  Demand(PF_Cmd_SEQUENCE_FLATTEN, &instance);
  std::vector<uint8_t> record = host.Handles().Bytes(instance.sequenceData);
  Demand(PF_Cmd_SEQUENCE_RESETUP, &instance);
  return record;
}

std::string HostSession::AboutText() {
  std::string text = Demand(PF_Cmd_ABOUT).message;
  std::replace(text.begin(), text.end(), '\r', '\n');
  return text;
}

void HostSession::Close() {
  while (!instances.empty()) {
    const std::unique_ptr<EffectInstance> last = std::move(instances.back());
    instances.pop_back();
    Demand(PF_Cmd_SEQUENCE_SETDOWN, last.get());
  }
  if (!isSetUp) return;
  isSetUp = false;
  Demand(PF_Cmd_GLOBAL_SETDOWN);
  const size_t left = host.Handles().LiveCount();
  if (left > 0) {
    ThrowIfBroken({"Global setdown: " + std::to_string(left) + " handle(s) never disposed of"});
  }
}
