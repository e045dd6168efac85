// The resources in the file of a Windows module, read from its bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct ModuleResource {
  std::string type;  // a number as "#16"
  std::string name;  // the same
  uint32_t language = 0;
  std::string bytes;
};

// file   the whole module
// Throws std::out_of_range where something points out of the file, std::runtime_error where it is
// no module for 64 bits.
std::vector<ModuleResource> ReadModuleResources(const std::string& file);
