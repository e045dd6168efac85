// Acquires on first use, releases at the end.
#include "host/SuiteHandler.h"

#include "AE_Effect.h"

AEGP_SuiteHandler::~AEGP_SuiteHandler() {
  Release(pfInterface);
  Release(layer);
  Release(comp);
  Release(stream);
  Release(keyframe);
  Release(effect);
  Release(advApp);
}

const void* AEGP_SuiteHandler::Acquire(const char* name, int version) const {
  const void* suite = nullptr;
  const bool refused = basic == nullptr || basic->AcquireSuite(name, version, &suite) != 0;
  if (refused || suite == nullptr) throw static_cast<int>(PF_Err_BAD_CALLBACK_PARAM);
  return suite;
}
