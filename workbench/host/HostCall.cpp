// Counts a call of the plug-in in its command.
#include "workbench/host/HostCall.h"

HostCall::HostCall(const char* callName)
    : name(callName),
      scope(CommandScope::Current()),
      error(scope != nullptr ? scope->EnterCall() : PF_Err_INVALID_CALLBACK) {}

HostCall::HostCall(const char* callName, PF_ProgPtr effectRef) : HostCall(callName) {
  if (error == PF_Err_NONE && effectRef != scope->EffectRef()) {
    error = Broken("effect_ref is not the one of this call");
  }
}
