// Pictures in plain memory, where the system has no bitmaps of its own.
#include "platform/BitmapMemory.h"

#include <cstddef>
#include <cstdlib>

BitmapMemory AllocateBitmap(int32_t width, int32_t height) {
  BitmapMemory memory;
  memory.pixels = static_cast<uint8_t*>(
      std::calloc(static_cast<size_t>(width) * 4, static_cast<size_t>(height)));
  return memory;
}

void FreeBitmap(const BitmapMemory& memory) {
  std::free(memory.pixels);
}

void BlitBitmap(const BitmapMemory& /*memory*/, SurfaceHandle /*target*/, int32_t /*sourceX*/,
                int32_t /*sourceY*/, int32_t /*width*/, int32_t /*height*/, int32_t /*targetX*/,
                int32_t /*targetY*/) {}
