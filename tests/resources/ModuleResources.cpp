// From the header to the sections, and down the tree of resources: types, names, languages.
#include "ModuleResources.h"

namespace {

constexpr uint32_t kHigh = 0x80000000U;  // marks a text among names

class ResourceReader {
 public:
  explicit ResourceReader(const std::string& module)
      : file(module), header(Number(0x3C, 4)), tree(OffsetOf(Number(header + 152, 4))) {}

  std::vector<ModuleResource> Read() {
    ReadDirectory(tree, 0);
    return resources;
  }

 private:
  uint32_t Number(size_t offset, int size) const {
    return size == 0 ? 0
                     : static_cast<uint8_t>(file.at(offset)) | Number(offset + 1, size - 1) << 8;
  }

  // From an address in memory to a place in the file.
  size_t OffsetOf(uint32_t address) const {
    size_t section = header + 24 + Number(header + 20, 2);
    while (address - Number(section + 12, 4) >= Number(section + 16, 4)) section += 40;
    return address - Number(section + 12, 4) + Number(section + 20, 4);
  }

  std::string NameOf(uint32_t key) const {
    if ((key & kHigh) == 0) return "#" + std::to_string(key);
    const size_t text = tree + (key & ~kHigh);
    std::string name;
    for (uint32_t i = 1; i <= Number(text, 2); ++i) name += file.at(text + size_t{2} * i);
    return name;
  }

  void ReadDirectory(size_t directory, int level) {
    const uint32_t count = Number(directory + 12, 2) + Number(directory + 14, 2);
    for (size_t entry = directory + 16; entry < directory + 16 + size_t{8} * count; entry += 8) {
      const uint32_t key = Number(entry, 4);
      const size_t target = tree + (Number(entry + 4, 4) & ~kHigh);
      if (level == 2) {
        current.language = key;
        current.bytes = file.substr(OffsetOf(Number(target, 4)), Number(target + 4, 4));
        resources.push_back(current);
        continue;
      }
      (level == 0 ? current.type : current.name) = NameOf(key);
      ReadDirectory(target, level + 1);
    }
  }

  const std::string& file;
  size_t header;
  size_t tree;
  ModuleResource current;
  std::vector<ModuleResource> resources;
};

}  // namespace

std::vector<ModuleResource> ReadModuleResources(const std::string& file) {
  return ResourceReader(file).Read();
}
