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

// file   a whole module for 64 bits
// Throws std::out_of_range where something points out of the file.
std::vector<ModuleResource> ReadModuleResources(const std::string& file);
