// What one command is doing in the host: which calls it made, what it holds, which rules it broke.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "AE_Effect.h"
#include "AE_GeneralTypes.h"
#include "workbench/host/KeyframeStream.h"

class Drawing;
class EffectHost;
class EffectInstance;
class OutputWorld;
class Pane;

// Makes the n-th host call of a command fail.
struct Fault {
  int64_t atCall = 0;  // counted from 1; 0: no call fails
  // 0: a call of the drawing or the project suites succeeds, but what it hands out is null or, for
  // a time, as it was; other calls do their work
  PF_Err error = PF_Err_BAD_CALLBACK_PARAM;
};

// Sound that a command has checked out.
struct AudioCheckout {
  std::vector<int16_t> samples;
};

// References that a command has opened through the project suites.
struct OpenEffect {
  EffectInstance& instance;
};
struct OpenStream {
  OpenEffect& effect;
  size_t parameter = 0;
};
struct StagedKeyframe {
  Keyframe keyframe;
  bool hasValue = false;
  int64_t order = 0;  // over all streams of the command
};
struct OpenBatch {
  OpenStream& stream;
  std::vector<StagedKeyframe> keyframes;
};

// The objects of one kind that a command has open, known by their address.
template <typename Object>
class OpenObjects {
 public:
  Object& Open(Object object) {
    objects.push_back(std::make_unique<Object>(std::move(object)));
    return *objects.back();
  }
  // Null for an address that is none of them.
  Object* Find(const void* address) const {
    for (const auto& object : objects) {
      if (object.get() == address) return object.get();
    }
    return nullptr;
  }
  void Close(const Object* closed) {
    std::erase_if(objects, [closed](const auto& object) { return object.get() == closed; });
  }
  template <typename Predicate>
  bool Any(Predicate predicate) const {
    for (const auto& object : objects) {
      if (predicate(*object)) return true;
    }
    return false;
  }
  size_t Count() const { return objects.size(); }

 private:
  std::vector<std::unique_ptr<Object>> objects;
};

// Lives on the host's stack around one call of the plug-in; callbacks on the same thread find it.
class CommandScope {
 public:
  CommandScope(EffectHost& effectHost, EffectInstance* effectInstance, PF_Cmd command,
               Fault plannedFault);
  ~CommandScope();
  CommandScope(const CommandScope&) = delete;
  CommandScope& operator=(const CommandScope&) = delete;

  // The scope of the command that runs on this thread; null between commands.
  static CommandScope* Current();

  EffectHost& Host() const { return host; }
  EffectInstance* Instance() const { return instance; }
  PF_Cmd Command() const { return cmd; }
  PF_ProgPtr EffectRef() const;

  // Counts a host call. Returns the error that it is to fail with, 0 where it is to do its work.
  PF_Err EnterCall();

  // Whether the call that was entered last is planned to hand out null.
  bool GivesNull();

  int64_t CallCount() const { return callCount; }
  bool FaultStruck() const { return faultStruck; }

  // Reports a rule that the plug-in broke in `call`. Returns PF_Err_BAD_CALLBACK_PARAM.
  PF_Err Broken(const std::string& call, const std::string& rule);
  const std::vector<std::string>& BrokenRules() const { return brokenRules; }

  // Reports a call that a render may not make, since renders run on several threads at once and
  // leave the project as it is. Returns 0 in any other command.
  PF_Err RefuseInRender(const std::string& call);

  // Reports all that is still locked, acquired or open. To be called when the command has returned.
  void CheckAllIsGivenBack();

  std::map<PF_Handle, int> locks;  // net locks of this command
  std::map<std::pair<std::string, int>, int> suites;
  OpenObjects<AudioCheckout> audio;
  OpenObjects<OpenEffect> effects;
  OpenObjects<OpenStream> streams;
  OpenObjects<OpenBatch> batches;
  int64_t stagedCount = 0;
  OutputWorld* output = nullptr;  // what a render draws into
  Pane* pane = nullptr;           // where an event comes from
  Drawing* drawing = nullptr;     // what a draw event draws on

 private:
  void CheckDrawing();
  void CheckNoneOpen(size_t count, const char* what);

  EffectHost& host;
  EffectInstance* instance;
  PF_Cmd cmd;
  Fault fault;
  CommandScope* outer;
  int64_t callCount = 0;
  bool faultStruck = false;
  std::vector<std::string> brokenRules;
};

// The host's name for a command, for messages.
std::string CommandName(PF_Cmd cmd);
