// A picture of pixels of any plain type in memory, for arithmetic between pictures.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>

template <typename Pixel>
class GenericWorld {
 public:
  GenericWorld() = default;
  GenericWorld(const GenericWorld&) = delete;
  GenericWorld& operator=(const GenericWorld&) = delete;
  virtual ~GenericWorld() { GenericWorld::Release(); }

  // Makes room for width x height pixels. Nothing happens where size and alignment are the same.
  //
  // alignRows   rows begin on boundaries of 32 bytes, and the pixels are left as the memory was;
  //             without it rows are packed and all bytes are 0
  // False, and the world as it was, for a size below 1, a size of 2^31 bytes or more, and where
  // there is no memory.
  virtual bool Allocate(int32_t newWidth, int32_t newHeight, bool alignRows);

  virtual void Release();

  // Allocates the larger of the present and the wanted size in each direction, aligned as it is.
  virtual bool EnsureCapacity(int32_t wantedWidth, int32_t wantedHeight) {
    return Allocate(std::max(width, wantedWidth), std::max(height, wantedHeight), aligned);
  }

  int32_t Width() const { return width; }
  int32_t Height() const { return height; }
  int32_t RowBytes() const { return rowBytes; }

  // Pixels of row y, from the top; the world must hold memory.
  Pixel* Row(int32_t y) { return reinterpret_cast<Pixel*>(data + RowOffset(y)); }
  const Pixel* Row(int32_t y) const { return reinterpret_cast<const Pixel*>(data + RowOffset(y)); }

 private:
  static constexpr int64_t kBoundary = 32;

  ptrdiff_t RowOffset(int32_t y) const { return static_cast<ptrdiff_t>(y) * rowBytes; }

  std::byte* data = nullptr;
  int32_t width = 0;
  int32_t height = 0;
  int32_t rowBytes = 0;
  std::byte* allocation = nullptr;  // data lies on the first boundary in it
  bool aligned = false;
};

template <typename Pixel>
bool GenericWorld<Pixel>::Allocate(int32_t newWidth, int32_t newHeight, bool alignRows) {
  if (newWidth < 1 || newHeight < 1) return false;
  if (data != nullptr && newWidth == width && newHeight == height && alignRows == aligned) {
    return true;
  }
  int64_t newRowBytes = int64_t{newWidth} * static_cast<int64_t>(sizeof(Pixel));
  if (alignRows) newRowBytes = (newRowBytes + kBoundary - 1) / kBoundary * kBoundary;
  if (newRowBytes > std::numeric_limits<int32_t>::max() / newHeight) return false;
  const auto bytes = static_cast<size_t>(newRowBytes * newHeight);
  size_t space = bytes + (alignRows ? kBoundary - 1 : 0);
  auto* memory = new (std::nothrow) std::byte[space];
  if (memory == nullptr) return false;
  if (!alignRows) std::fill_n(memory, bytes, std::byte{});
  Release();
  void* start = memory;
  if (alignRows) std::align(kBoundary, bytes, start, space);
  data = static_cast<std::byte*>(start);
  width = newWidth;
  height = newHeight;
  rowBytes = static_cast<int32_t>(newRowBytes);
  allocation = memory;
  aligned = alignRows;
  return true;
}

template <typename Pixel>
void GenericWorld<Pixel>::Release() {
  delete[] allocation;
  allocation = nullptr;
  data = nullptr;
  width = 0;
  height = 0;
  rowBytes = 0;
  aligned = false;
}
