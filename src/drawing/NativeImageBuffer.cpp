// Memory of a picture from the system, and putting it on a surface of the system.
#include "drawing/NativeImageBuffer.h"

#include <cstdio>
#include <limits>

#include "engine/ExceptionInfo.h"

NativeImageBuffer::~NativeImageBuffer() {
  NativeImageBuffer::Release();
}

void NativeImageBuffer::Allocate(int32_t newWidth, int32_t newHeight, bool /*alignRows*/) {
  if (newWidth < 1 || newHeight < 1) return;
  if (newWidth == width && newHeight == height) return;
  if (newWidth > std::numeric_limits<int32_t>::max() / 4 / newHeight) {
    throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  }
  const BitmapMemory newMemory = AllocateBitmap(newWidth, newHeight);
  if (newMemory.pixels == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  Release();
  memory = newMemory;
  pixels = newMemory.pixels;
  width = newWidth;
  height = newHeight;
  rowBytes = newWidth * 4;
}

void NativeImageBuffer::Release() {
  if (memory.pixels != nullptr) FreeBitmap(memory);
  memory = {};
  pixels = nullptr;  // the base would give them back a second time
  ImageBuffer::Release();
}

void NativeImageBuffer::BlitRect(SurfaceHandle target, int32_t sourceX, int32_t sourceY,
                                 int32_t partWidth, int32_t partHeight, int32_t targetX,
                                 int32_t targetY) const {
  if (target == nullptr) {
    std::fputs("Called NativeImageBuffer::BlitRect with null graphics context!\n", stderr);
    return;
  }
  if (pixels == nullptr) return;
  BlitBitmap(memory, target, sourceX, sourceY, partWidth, partHeight, targetX, targetY);
}
