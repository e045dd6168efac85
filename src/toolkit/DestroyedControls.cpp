// The map of the controls that have gone.
#include "toolkit/DestroyedControls.h"

#include <map>
#include <new>

namespace {

std::map<const ControlPane*, bool>& Entries() {
  static std::map<const ControlPane*, bool> entries;
  return entries;
}

}  // namespace

void DestroyedControls::Enter(const ControlPane* control) noexcept {
  try {
    Entries()[control] = true;
  } catch (const std::bad_alloc&) {
    // A destructor can't fail; the entry is missing then.
    return;
  }
}

void DestroyedControls::ForgetAll() {
  Entries().clear();
}

bool DestroyedControls::Contains(const ControlPane* control) {
  return Entries().contains(control);
}
