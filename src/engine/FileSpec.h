// Says what to read: a block of memory.
#pragma once

#include <cstdint>
#include <string>

struct FileSpec {
  std::string name;                     // empty for a block of memory
  const uint8_t* memoryData = nullptr;  // borrowed; memorySize bytes
  uint32_t memorySize = 0;
};
