// There is no keyboard that a library could ask here.
#include "platform/HeldKeys.h"

std::optional<HeldKeys> GetHeldKeys() {
  return std::nullopt;
}
