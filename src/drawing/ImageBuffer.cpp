// Memory of a picture.
#include "drawing/ImageBuffer.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "engine/ExceptionInfo.h"

ImageBuffer::~ImageBuffer() { ImageBuffer::Release(); }

void ImageBuffer::Allocate(int32_t newWidth, int32_t newHeight, bool alignRows) {
  if (newWidth == width && newHeight == height) return;
  if (newWidth < 1 || newHeight < 1) {
    Release();
    return;
  }
  const int64_t rowPixels = alignRows ? (int64_t{newWidth} + 3) / 4 * 4 : newWidth;
  auto* memory = new (std::nothrow) uint8_t[static_cast<size_t>(rowPixels * 4 * newHeight)]();
  if (memory == nullptr) throw App::ExceptionInfo{App::kOutOfMemory, nullptr};
  Release();
  pixels = memory;
  width = newWidth;
  height = newHeight;
  rowBytes = static_cast<int32_t>(rowPixels * 4);
}

void ImageBuffer::EnsureSize(int32_t wantedWidth, int32_t wantedHeight) {
  Allocate(std::max(width, wantedWidth), std::max(height, wantedHeight), false);
}

void ImageBuffer::Release() {
  delete[] pixels;
  pixels = nullptr;
  width = 0;
  height = 0;
  rowBytes = 0;
  scale = 1.0F;
  scaleAware = false;
}

ColorBGRA* ImageBuffer::Row(int32_t y) {
  if (pixels == nullptr) return nullptr;
  return reinterpret_cast<ColorBGRA*>(pixels + static_cast<ptrdiff_t>(y) * rowBytes);
}

const ColorBGRA* ImageBuffer::Row(int32_t y) const {
  if (pixels == nullptr) return nullptr;
  return reinterpret_cast<const ColorBGRA*>(pixels + static_cast<ptrdiff_t>(y) * rowBytes);
}
