// The keys that are down at this moment, whatever the events say.
#pragma once

#include <optional>

struct HeldKeys {
  bool shift = false;
  bool alt = false;
  bool control = false;
  bool space = false;
};

// Nothing where the system doesn't say.
std::optional<HeldKeys> GetHeldKeys();
