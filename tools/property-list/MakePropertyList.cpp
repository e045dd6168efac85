// Writes the property list, by which the host knows the plug-in before it loads it: a file for the
// resource of type PIPL. MakePropertyList FILE
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

#include "shell/PluginIdentity.h"

namespace {

// With the low byte first.
std::string Number(uint32_t value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  return bytes;
}

// Four characters that are a number, whose high byte is the first of them.
std::string Code(std::string_view code) {
  return {code.rbegin(), code.rend()};
}

std::string PascalString(std::string_view text) {
  return static_cast<char>(text.size()) + std::string(text);
}

std::string VersionNumber(uint32_t major, uint32_t minor) {
  return Number(major << 16 | minor, 4);
}

// head:     1 in 2 bytes | 0 | how many properties
// each:     vendor | key | 0 | length | data, filled up to 4 bytes
class PropertyList {
 public:
  void Add(std::string_view key, const std::string& data) {
    properties += Code("8BIM") + Code(key) + Number(0, 4);
    properties += Number(static_cast<uint32_t>(data.size()), 4) + data;
    properties.append((4 - data.size() % 4) % 4, '\0');
    ++count;
  }

  std::string Bytes() const { return Number(1, 2) + Number(0, 4) + Number(count, 4) + properties; }

 private:
  std::string properties;
  uint32_t count = 0;
};

std::string MakePropertyList() {
  PropertyList list;
  list.Add("kind", Code("eFKT"));
  list.Add("name", PascalString(kPluginName));
  list.Add("catg", PascalString(kPluginCategory));
  list.Add("8664", std::string(kEntryPoint) + '\0');  // the code for 64-bit Windows
  list.Add("ePVR", VersionNumber(2, 0));
  list.Add("eSVR", VersionNumber(PF_PLUG_IN_VERSION, PF_PLUG_IN_SUBVERS));
  list.Add("eVER", Number(kPluginVersion, 4));
  list.Add("eINF", Number(0, 2));
  list.Add("eGLO", Number(kPluginOutFlags, 4));
  list.Add("eGL2", Number(kPluginOutFlags2, 4));
  list.Add("eMNA", PascalString(kPluginMatchName));
  list.Add("aeFL", Number(0, 4));
  return list.Bytes();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("MakePropertyList takes the file to write\n", stderr);
    return 2;
  }
  std::ofstream file(argv[1], std::ios::binary);
  file << MakePropertyList();
  file.close();
  if (!file) {
    std::fprintf(stderr, "%s can't be written\n", argv[1]);
    return 1;
  }
  return 0;
}
