// Walks from page to page of an Ogg file.
#include "workbench/audio/OggPages.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace {

constexpr std::string_view kPageMark = "OggS";

// A page:  | mark and fields, 27 bytes | n segment lengths | segments ... |  with n in byte 26.
constexpr size_t kPageHeadBytes = 27;
constexpr size_t kMostSegments = 255;

}  // namespace

bool EndsWithinOggPage(std::istream& bytes) {
  std::array<char, kPageHeadBytes + kMostSegments> page = {};
  bytes.clear();
  bytes.seekg(0, std::ios::end);
  const int64_t size = bytes.tellg();
  int64_t position = 0;
  while (position < size) {
    bytes.clear();
    bytes.seekg(position);
    bytes.read(page.data(), static_cast<std::streamsize>(page.size()));
    const auto count = static_cast<size_t>(bytes.gcount());
    if (!std::string_view(page.data(), count).starts_with(kPageMark)) return false;
    if (count < kPageHeadBytes) return true;
    const auto segments = static_cast<size_t>(static_cast<unsigned char>(page[kPageHeadBytes - 1]));
    if (count < kPageHeadBytes + segments) return true;
    for (size_t i = 0; i < segments; ++i)
      position += static_cast<unsigned char>(page[kPageHeadBytes + i]);
    position += static_cast<int64_t>(kPageHeadBytes + segments);
  }
  return position > size;
}
