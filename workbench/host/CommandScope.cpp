// The ledger of one command.
#include "workbench/host/CommandScope.h"

#include "workbench/drawbot/Drawing.h"
#include "workbench/host/EffectHost.h"

namespace {

thread_local CommandScope* currentScope = nullptr;

}  // namespace

CommandScope::CommandScope(EffectHost& effectHost, EffectInstance* effectInstance, PF_Cmd command,
                           Fault plannedFault)
    : host(effectHost),
      instance(effectInstance),
      cmd(command),
      fault(plannedFault),
      outer(currentScope) {
  currentScope = this;
}

CommandScope::~CommandScope() {
  currentScope = outer;
}

CommandScope* CommandScope::Current() {
  return currentScope;
}

PF_ProgPtr CommandScope::EffectRef() const {
  void* identity = instance != nullptr ? static_cast<void*>(instance) : &host;
  return static_cast<PF_ProgPtr>(identity);
}

PF_Err CommandScope::EnterCall() {
  ++callCount;
  if (callCount != fault.atCall || fault.error == PF_Err_NONE) return PF_Err_NONE;
  faultStruck = true;
  return fault.error;
}

bool CommandScope::GivesNull() {
  if (callCount != fault.atCall) return false;
  faultStruck = true;
  return true;
}

PF_Err CommandScope::Broken(const std::string& call, const std::string& rule) {
  brokenRules.push_back(call + ": " + rule);
  return PF_Err_BAD_CALLBACK_PARAM;
}

PF_Err CommandScope::RefuseInRender(const std::string& call) {
  return cmd == PF_Cmd_RENDER ? Broken(call, "a render may not change the project") : PF_Err_NONE;
}

void CommandScope::CheckNoneOpen(size_t count, const char* what) {
  if (count > 0) Broken(CommandName(cmd), std::to_string(count) + " " + what + " at the end");
}

void CommandScope::CheckDrawing() {
  if (drawing == nullptr) return;
  for (const std::string& objects : drawing->objects.LeftOver()) {
    Broken(CommandName(cmd), objects + " not released at the end");
  }
  CheckNoneOpen(drawing->PushedCount(), "pushed state(s) of the surface not popped");
}

void CommandScope::CheckAllIsGivenBack() {
  for (const auto& [handle, count] : locks) {
    if (count != 0 && host.Handles().IsLive(handle)) {
      Broken(CommandName(cmd), "a handle of " + std::to_string(host.Handles().Size(handle)) +
                                   " bytes is locked " + std::to_string(count) +
                                   " time(s) at the end");
    }
  }
  for (const auto& [suite, count] : suites) {
    if (count != 0) {
      Broken(CommandName(cmd), "\"" + suite.first + "\" version " + std::to_string(suite.second) +
                                   " is acquired " + std::to_string(count) + " time(s) at the end");
    }
  }
  CheckDrawing();
  CheckNoneOpen(audio.Count(), "audio checkout(s) not checked in");
  CheckNoneOpen(batches.Count(), "batch(es) of keyframes not ended");
  CheckNoneOpen(streams.Count(), "stream(s) not disposed of");
  CheckNoneOpen(effects.Count(), "effect reference(s) not disposed of");
}

std::string CommandName(PF_Cmd cmd) {
  switch (cmd) {
    case PF_Cmd_ABOUT:
      return "About";
    case PF_Cmd_GLOBAL_SETUP:
      return "Global setup";
    case PF_Cmd_GLOBAL_SETDOWN:
      return "Global setdown";
    case PF_Cmd_PARAMS_SETUP:
      return "Parameter setup";
    case PF_Cmd_SEQUENCE_SETUP:
      return "Sequence setup";
    case PF_Cmd_SEQUENCE_RESETUP:
      return "Sequence resetup";
    case PF_Cmd_SEQUENCE_FLATTEN:
      return "Sequence flatten";
    case PF_Cmd_SEQUENCE_SETDOWN:
      return "Sequence setdown";
    case PF_Cmd_RENDER:
      return "Render";
    case PF_Cmd_USER_CHANGED_PARAM:
      return "User changed parameter";
    case PF_Cmd_UPDATE_PARAMS_UI:
      return "Update parameters";
    case PF_Cmd_EVENT:
      return "Event";
    case PF_Cmd_GET_FLATTENED_SEQUENCE_DATA:
      return "Get flattened data";
    default:
      return "Selector " + std::to_string(cmd);
  }
}
