// The keyboard of the system.
#include "platform/HeldKeys.h"

#include <windows.h>

namespace {

bool IsDown(int key) {
  return GetAsyncKeyState(key) < 0;  // the high bit; the low one is about the past
}

}  // namespace

std::optional<HeldKeys> GetHeldKeys() {
  return HeldKeys{IsDown(VK_SHIFT), IsDown(VK_MENU), IsDown(VK_CONTROL), IsDown(VK_SPACE)};
}
