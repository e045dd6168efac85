// Memory for pictures that the system's own drawing can read.
#pragma once

#include <cstdint>

// Opaque to all but the functions here.
using BitmapHandle = void*;
using SurfaceHandle = void*;

struct BitmapMemory {
  BitmapHandle bitmap = nullptr;
  SurfaceHandle surface = nullptr;
  uint8_t* pixels =
      nullptr;  // top row first, width x 4 bytes a row, all 0; null if there's no memory
};

// width and height   at least 1
BitmapMemory AllocateBitmap(int32_t width, int32_t height);
void FreeBitmap(const BitmapMemory& memory);

// Copies a rectangle of the bitmap onto a surface of the system. Nothing where it has none.
void BlitBitmap(const BitmapMemory& memory, SurfaceHandle target, int32_t sourceX, int32_t sourceY,
                int32_t width, int32_t height, int32_t targetX, int32_t targetY);
