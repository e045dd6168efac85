// Catches a library that the host wouldn't list, or would list as something else than what it then
// says of itself; and images that aren't the ones that were drawn.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "ModuleResources.h"
#include "platform/NamedResource.h"

namespace {

using namespace std::string_literals;

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<ModuleResource> ResourcesOf(const std::string& type) {
  std::vector<ModuleResource> resources = ReadModuleResources(ReadFile(PLUGIN_PATH));
  std::erase_if(resources, [&type](const ModuleResource& r) { return r.type != type; });
  return resources;
}

std::string Reversed(const std::string& text) {
  return {text.rbegin(), text.rend()};
}

TEST(BuiltLibrary, TellsTheHostWhatItIs) {
  struct Property {
    const char* key;
    std::string data;
  };
  const Property kProperties[] = {
      {"kind", Reversed("eFKT")},
      {"name",
       "\x07"
       "Delvior"},
      {"catg", "\x0BOm Quorvane"},
      {"8664", "EntryPointFunc\0"s},
      {"ePVR", "\0\0\x02\0"s},      // 2.0
      {"eSVR", "\x19\0\x0D\0"s},    // 13.25
      {"eVER", "\0\x06\x10\x08"s},  // 18.0.0, release
      {"eINF", "\0\0"s},
      {"eGLO", "\x15\x80\x10\x04"s},
      {"eGL2", "\0\0\x80\x18"s},
      {"eMNA", "\x0Aqv Delvior"},
      {"aeFL", "\0\0\0\0"s},
  };
  std::string expected = "\x01\0\0\0\0\0\x0C\0\0\0"s;
  for (const Property& property : kProperties) {
    expected += "MIB8" + Reversed(property.key) + "\0\0\0\0"s;
    expected += static_cast<char>(property.data.size()) + "\0\0\0"s + property.data;
    while (expected.size() % 4 != 2) expected += '\0';  // the head has 10 bytes
  }

  const std::vector<ModuleResource> lists = ResourcesOf("PIPL");
  ASSERT_EQ(lists.size(), 1U);
  EXPECT_EQ(lists[0].name, "#16000");
  EXPECT_EQ(lists[0].language, 1033U);
  EXPECT_EQ(lists[0].bytes, expected);
  EXPECT_EQ(expected.size(), 282U);
}

TEST(BuiltLibrary, CarriesTheImagesAsTheyAre) {
  const std::vector<ModuleResource> images = ResourcesOf("PNG");
  size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(IMAGES_FOLDER)) {
    const std::string name = entry.path().stem().string();
    const auto image = std::ranges::find(images, name, &ModuleResource::name);
    ASSERT_NE(image, images.end()) << name;
    EXPECT_EQ(image->bytes, ReadFile(entry.path())) << name;
    ++files;
  }
  EXPECT_EQ(images.size(), files);
  EXPECT_GE(files, 11U);
}

TEST(BuiltLibrary, GivesItsImagesWhenItIsLoaded) {
  HMODULE const module = LoadLibraryA(PLUGIN_PATH);
  ASSERT_NE(module, nullptr) << GetLastError();
  EXPECT_NE(GetProcAddress(module, "EntryPointFunc"), nullptr);
  for (const ModuleResource& image : ResourcesOf("PNG")) {
    const NamedResource found = FindNamedResource(module, image.name.c_str(), "png");
    EXPECT_EQ(std::string(found.bytes, found.bytes + found.size), image.bytes) << image.name;
  }
  EXPECT_EQ(FindNamedResource(module, "UNDO_NORMAL", "PNG").bytes, nullptr);
  FreeLibrary(module);
}

}  // namespace
