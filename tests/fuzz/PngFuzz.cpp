// Feeds the PNG reader: the input as it is, then with its checksums put right, so that what lies
// behind a checksum is reached too.
#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/ExceptionInfo.h"
#include "engine/PngFile.h"

namespace {

void Read(const std::vector<uint8_t>& bytes) {
  ImageBuffer image;
  try {
    PngFile().ReadFile({"", bytes.data(), static_cast<uint32_t>(bytes.size())}, image);
  } catch (const App::ExceptionInfo&) {
    return;
  }
}

uint32_t BigEndian(const uint8_t* bytes) {
  return uint32_t{bytes[0]} << 24 | uint32_t{bytes[1]} << 16 | uint32_t{bytes[2]} << 8 | bytes[3];
}

void RepairChecksums(std::vector<uint8_t>& bytes) {
  constexpr size_t kSignature = 8;
  constexpr size_t kAround = 12;  // length, name and checksum of a chunk
  for (size_t chunk = kSignature; bytes.size() - chunk >= kAround;) {
    const uint32_t length = BigEndian(&bytes[chunk]);
    if (length > bytes.size() - chunk - kAround) return;
    const uLong checksum = crc32(0, &bytes[chunk + 4], length + 4);
    chunk += length + kAround;
    for (size_t i = 1; i <= 4; ++i) {
      bytes[chunk - i] = static_cast<uint8_t>(checksum >> (8 * (i - 1)));
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<uint8_t> bytes(data, data + size);
  Read(bytes);
  if (size < 8) return 0;
  RepairChecksums(bytes);
  Read(bytes);
  return 0;
}
