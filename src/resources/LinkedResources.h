// The resources as a table in the library, for systems whose modules have none by name.
#pragma once

#include <cstdint>
#include <span>

struct LinkedResource {
  const char* name;
  const char* type;
  std::span<const uint8_t> bytes;
};

// All of images/, each by its file's name without what follows the dot.
extern const std::span<const LinkedResource> linkedResources;
