// Data that is part of a module and is found by its name, as the system keeps it.
#pragma once

#include <cstdint>

#include "platform/LibraryModule.h"

// Lasts as long as the module is loaded.
struct NamedResource {
  const uint8_t* bytes = nullptr;  // null where there is none
  uint32_t size = 0;
};

// Finds the resource of that name and type, the case of neither looked at.
//
// The table that is looked through belongs to a program, not to the platform: what calls this is
// linked with src/resources, or supplies a function of its own.
NamedResource FindNamedResource(ModuleHandle module, const char* name, const char* type);
