// The way into a callback: finds the command that runs on this thread, and counts the call.
#pragma once

#include <string>

#include "workbench/host/CommandScope.h"

// Lives on the stack of one callback.
//
//     const HostCall call("AEGP_DisposeStream");
//     if (!call) return call.Error();
class HostCall {
 public:
  // callName   outlives the call; for messages
  explicit HostCall(const char* callName);

  // A call that names its effect: a foreign reference breaks a rule and fails.
  HostCall(const char* callName, PF_ProgPtr effectRef);

  // Whether the call is to do its work. Where not, Error() is its answer.
  explicit operator bool() const { return error == PF_Err_NONE; }
  PF_Err Error() const { return error; }

  // False between commands. What lets go asks this alone: it does its work even where the host then
  // answers with an error.
  bool IsWithinCommand() const { return scope != nullptr; }
  CommandScope& Scope() const { return *scope; }
  CommandScope* operator->() const { return scope; }

  // Reports a rule that the plug-in broke in this call. Returns PF_Err_BAD_CALLBACK_PARAM.
  PF_Err Broken(const std::string& rule) const { return scope->Broken(name, rule); }

  // As CommandScope has it.
  PF_Err RefuseInRender() const { return scope->RefuseInRender(name); }

 private:
  const char* name;
  CommandScope* scope;
  PF_Err error;
};
