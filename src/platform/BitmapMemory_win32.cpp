// Pictures in bitmaps of GDI: the bits are ours to write, and its drawing calls read them.
#include "platform/BitmapMemory.h"

#include <windows.h>

#include <memory>
#include <type_traits>

namespace {

struct DeleteSurface {
  void operator()(HDC surface) const { DeleteDC(surface); }
};
struct DeleteBitmap {
  void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using OwnedSurface = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteSurface>;
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteBitmap>;

BITMAPINFO TopDown32(int32_t width, int32_t height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // a negative height puts the top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

}  // namespace

BitmapMemory AllocateBitmap(int32_t width, int32_t height) {
  OwnedSurface surface(CreateCompatibleDC(nullptr));
  if (surface == nullptr) return {};
  const BITMAPINFO info = TopDown32(width, height);
  void* bits = nullptr;
  OwnedBitmap bitmap(CreateDIBSection(surface.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap == nullptr || bits == nullptr) return {};
  if (SelectObject(surface.get(), bitmap.get()) == nullptr) return {};
  // Fresh pages of the system's, and those are 0.
  return {bitmap.release(), surface.release(), static_cast<uint8_t*>(bits)};
}

void FreeBitmap(const BitmapMemory& memory) {
  // A bitmap can't go while a surface has it selected: the surface goes first.
  DeleteDC(static_cast<HDC>(memory.surface));
  DeleteObject(static_cast<HBITMAP>(memory.bitmap));
}

void BlitBitmap(const BitmapMemory& memory, SurfaceHandle target, int32_t sourceX, int32_t sourceY,
                int32_t width, int32_t height, int32_t targetX, int32_t targetY) {
  BitBlt(static_cast<HDC>(target), targetX, targetY, width, height,
         static_cast<HDC>(memory.surface), sourceX, sourceY, SRCCOPY);
}
