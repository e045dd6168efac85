// From the header to the sections, and down the tree of resources: types, names, languages.
#include "ModuleResources.h"

#include <stdexcept>

namespace {

class Module {
 public:
  explicit Module(const std::string& wholeFile) : file(wholeFile) {
    header = Number(0x3C, 4);
    if (file.substr(header, 4) != std::string("PE\0\0", 4) || Number(header + 24, 2) != 0x20B) {
      throw std::runtime_error("not a module for 64 bits");
    }
  }

  uint32_t Number(uint64_t offset, int size) const {
    uint32_t number = 0;
    for (int i = size; i-- > 0;) {
      number = number << 8 | static_cast<uint8_t>(file.at(offset + static_cast<uint64_t>(i)));
    }
    return number;
  }

  std::string Bytes(uint64_t offset, uint32_t size) const {
    if (offset + size > file.size()) throw std::out_of_range("bytes outside the file");
    return file.substr(offset, size);
  }

  // Where the third directory, that of the resources, lies in memory.
  uint32_t ResourceAddress() const { return Number(header + 24 + 112 + 2 * 8, 4); }

  // From an address in memory to a place in the file.
  uint64_t OffsetOf(uint32_t address) const {
    const uint32_t sections = Number(header + 6, 2);
    uint64_t section = uint64_t{header} + 24 + Number(header + 20, 2);
    for (uint32_t i = 0; i < sections; ++i, section += 40) {
      const uint32_t start = Number(section + 12, 4);
      const uint32_t size = Number(section + 16, 4);
      if (address >= start && address - start < size) {
        return uint64_t{Number(section + 20, 4)} + (address - start);
      }
    }
    throw std::out_of_range("an address in no section");
  }

 private:
  const std::string& file;
  uint32_t header = 0;
};

class ResourceTree {
 public:
  explicit ResourceTree(const Module& itsModule)
      : module(itsModule), start(module.OffsetOf(module.ResourceAddress())) {}

  std::vector<ModuleResource> Read() {
    ReadDirectory(0, 0);
    return resources;
  }

 private:
  static constexpr uint32_t kHigh = 0x80000000U;  // a text, or a directory

  std::string NameOf(uint32_t entry) const {
    if ((entry & kHigh) == 0) return "#" + std::to_string(entry);
    const uint64_t text = start + (entry & ~kHigh);
    std::string name;
    for (uint32_t i = 0; i < module.Number(text, 2); ++i) {
      name += static_cast<char>(module.Number(text + 2 + 2 * i, 2));
    }
    return name;
  }

  void ReadDirectory(uint32_t place, int level) {
    const uint64_t directory = start + place;
    const uint32_t count = module.Number(directory + 12, 2) + module.Number(directory + 14, 2);
    for (uint32_t i = 0; i < count; ++i) {
      const uint64_t entry = directory + 16 + 8 * i;
      const uint32_t key = module.Number(entry, 4);
      const uint32_t target = module.Number(entry + 4, 4);
      if (level == 0) current.type = NameOf(key);
      if (level == 1) current.name = NameOf(key);
      if (level < 2) {
        ReadDirectory(target & ~kHigh, level + 1);
        continue;
      }
      current.language = key;
      current.bytes = module.Bytes(module.OffsetOf(module.Number(start + target, 4)),
                                   module.Number(start + target + 4, 4));
      resources.push_back(current);
    }
  }

  const Module& module;
  uint64_t start;
  ModuleResource current;
  std::vector<ModuleResource> resources;
};

}  // namespace

std::vector<ModuleResource> ReadModuleResources(const std::string& file) {
  const Module module(file);
  return ResourceTree(module).Read();
}
