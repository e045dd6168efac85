// A plug-in in use: loaded, set up, with effects on layers, and a user who changes and presses
// things.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "workbench/host/EffectHost.h"
#include "workbench/host/PanelRow.h"

// Every operation throws JobFailure where the plug-in fails or breaks a rule of the host. What the
// plug-in has to tell without failing is kept in Messages().
class HostSession {
 public:
  // Loads the library and takes it through global and parameter setup.
  explicit HostSession(const std::filesystem::path& library, HostProfile profile = {});
  ~HostSession();
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;

  EffectHost& Host() { return host; }
  const ParameterList& Parameters() { return host.Parameters(); }

  // Puts the effect on a layer, which must outlive the session.
  //
  // record   what a project stored of the instance; none for a new one
  EffectInstance& AddInstance(Layer& layer,
                              const std::optional<std::vector<uint8_t>>& record = std::nullopt);

  // Tells the plug-in that the user has changed a value, which stands in the instance already.
  void UserChanged(EffectInstance& instance, size_t parameter);

  // The row of that name which the plug-in draws itself, in the size that it has declared. Stands
  // at the left of its pane, some way down, and has no canvas yet. Instance and session outlive it.
  std::unique_ptr<PanelRow> OpenRow(EffectInstance& instance, const char* name);

  // Presses the Apply button and releases it. The instance's `written` holds what came of it.
  void PressApply(EffectInstance& instance);

  // Renders frame `frame` of the comp.
  //
  // world        holds the layer at 1 / downsample of its size
  // downsample   1 and more
  // May run on several threads at once, each with a world of its own, while nothing else does.
  // Throws JobFailure also where the frame lies beyond what 32-bit ticks can tell.
  void RenderFrame(EffectInstance& instance, int64_t frame, OutputWorld& world,
                   uint32_t downsample = 1);

  // A copy of the instance's record, as a project stores it.
  std::vector<uint8_t> FlattenedRecord(EffectInstance& instance);

  // The plug-in's About text, lines parted by '\n'.
  std::string AboutText();

  // Takes instances and library down, and checks that nothing of the host's is left with them.
  void Close();

  const std::vector<std::string>& Messages() const { return messages; }

 private:
  // Sends a command and throws where it failed.
  CommandResult Demand(PF_Cmd cmd, EffectInstance* instance = nullptr, void* extra = nullptr);

  // Throws where the command failed, keeps what the plug-in has to tell otherwise.
  void Judge(PF_Cmd cmd, const CommandResult& result);

  EffectHost host;
  std::vector<std::unique_ptr<EffectInstance>> instances;
  std::mutex messagesMutex;
  std::vector<std::string> messages;
  bool isSetUp = false;
};
