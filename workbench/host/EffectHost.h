// Sends commands to a loaded plug-in as a host does, and checks what the plug-in does with them.
#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "AE_Effect.h"
#include "AE_EffectUI.h"
#include "workbench/host/CommandScope.h"
#include "workbench/host/EffectInstance.h"
#include "workbench/host/MovableHandles.h"
#include "workbench/host/ParameterList.h"
#include "workbench/host/PluginLibrary.h"
#include "workbench/host/RenderRequest.h"

constexpr A_long kAfterEffectsId = 0x46585443;  // 'FXTC'

// What kind of host this is.
struct HostProfile {
  PF_SpecVersion version{13, 25};
  A_long applId = kAfterEffectsId;
  bool hasBasicSuite = true;
  std::set<std::string> missingSuites = {};  // by name
  // Of the interface, and so of its panels: a dark grey, as hosts of this kind have.
  PF_App_Color interfaceColor{0x2D2D, 0x2D2D, 0x2D2D};
  bool drawsText = true;
};

// What an event finds of the host's window; both outlive it.
struct EventPlace {
  Pane* pane = nullptr;
  Drawing* drawing = nullptr;  // of PF_Event_DRAW; null in any other
};

// What came back from one command.
struct CommandResult {
  PF_Err error = PF_Err_NONE;
  PF_OutFlags outFlags = 0;
  std::string message;              // the return message, empty where there is none
  std::vector<std::string> broken;  // the rules that the plug-in broke
  std::vector<uint8_t> flatRecord;  // of PF_Cmd_GET_FLATTENED_SEQUENCE_DATA
  int64_t hostCalls = 0;
  bool faultStruck = false;

  // Whether the host shows the message as a failure.
  bool ShowsMessage() const { return (outFlags & PF_OutFlag_DISPLAY_ERROR_MESSAGE) != 0; }
};

class EffectHost {
 public:
  // Loads the library; sends nothing yet. Throws JobFailure.
  explicit EffectHost(const std::filesystem::path& library, HostProfile hostProfile = {});
  // The same for a plug-in that is linked into this program.
  explicit EffectHost(PF_EntryPoint linked, HostProfile hostProfile = {});
  EffectHost(const EffectHost&) = delete;
  EffectHost& operator=(const EffectHost&) = delete;

  // Calls the plug-in with one command.
  //
  // instance   the effect that the command is for; null for the commands of the library
  // Handles that come back are taken over: global data and an instance's record.
  CommandResult Send(PF_Cmd cmd, EffectInstance* instance = nullptr, void* extra = nullptr,
                     Fault fault = {});

  // Calls the plug-in with PF_Cmd_EVENT. `event` is left as the plug-in leaves it.
  CommandResult SendEvent(EffectInstance& instance, PF_EventExtra& event, const EventPlace& place,
                          Fault fault = {});

  // Calls the plug-in with PF_Cmd_RENDER. May run on several threads at once, each with a world of
  // its own, while no other command runs.
  CommandResult Render(EffectInstance& instance, const RenderRequest& request, Fault fault = {});

  MovableHandles& Handles() { return handles; }
  ParameterList& Parameters() { return parameters; }
  const HostProfile& Profile() const { return profile; }
  HostProfile& Profile() { return profile; }

  // What global setup declared.
  PF_OutFlags DeclaredFlags() const { return declaredFlags; }
  PF_OutFlags2 DeclaredFlags2() const { return declaredFlags2; }
  A_u_long DeclaredVersion() const { return declaredVersion; }
  PF_Handle GlobalData() const { return globalData; }

  // Which windows' events the plug-in has asked for, as PF_CustomEFlag_* bits.
  A_long customEvents = 0;

  // Gets each text that the plug-in shows in the Info panel, on the thread of the command.
  std::function<void(const char* text)> onInfoText;

 private:
  CommandResult SendFrom(CommandScope& scope, void* extra, const RenderRequest* request);
  PF_InData MakeInData(CommandScope& scope, const RenderRequest* request);
  void TakeOver(PF_Cmd cmd, EffectInstance* instance, const PF_InData& in_data,
                const PF_OutData& out_data, CommandScope& scope, CommandResult& result);
  void TakeOverFlatCopy(const PF_InData& in_data, const PF_OutData& out_data, CommandScope& scope,
                        CommandResult& result);

  HostProfile profile;
  PluginLibrary plugin;
  MovableHandles handles;
  ParameterList parameters;
  PF_Handle globalData = nullptr;
  PF_OutFlags declaredFlags = 0;
  PF_OutFlags2 declaredFlags2 = 0;
  A_u_long declaredVersion = 0;
};
