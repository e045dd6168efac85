// Reading from a block of memory.
#include "engine/XFile.h"

#include <algorithm>
#include <cstring>

void XFile::Open(const FileSpec& source) {
  name = source.name;
  memoryData = source.memoryData;
  memorySize = source.memorySize;
  readPosition = 0;
}

uint32_t XFile::Read(void* buffer, uint32_t count) {
  if (memoryData == nullptr) return 0;
  const uint32_t length = std::min(count, memorySize - readPosition);
  if (length > 0) std::memcpy(buffer, memoryData + readPosition, length);
  readPosition += length;
  return length;
}

void XFile::Seek(uint32_t position) {
  readPosition = std::min(position, memorySize);
}

void XFile::Close() {
  memoryData = nullptr;
  readPosition = 0;
}
