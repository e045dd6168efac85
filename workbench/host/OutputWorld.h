// The pixels that an effect renders into, with guard bytes that show what was written beside them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "AE_EffectWorld.h"

// May be rendered into again and again: each frame finds the pixels of the one before, the first
// finds kFreshByte. To be used by one thread at a time.
//
//     guard ............................
//     guard ...... row 0        | padding
//                  row 1        | padding     padding holds guard bytes too
//                  ...          | padding
//     guard ............................
class OutputWorld {
 public:
  static constexpr uint8_t kFreshByte = 0xCD;
  // None of the bytes that drawings are made of: not 0, not 255, and halving it shows.
  static constexpr uint8_t kGuardByte = 0xA5;
  static constexpr int32_t kRowPaddingBytes = 64;

  // 8 bits a channel; sides of 0 to 30000. Throws JobFailure where there is no room for that many
  // pixels.
  OutputWorld(int32_t worldWidth, int32_t worldHeight);

  int32_t Width() const { return width; }
  int32_t Height() const { return height; }
  int32_t RowBytes() const { return rowBytes; }

  // Row y, from the top. y   0 to Height() - 1
  std::span<PF_Pixel8> Row(int32_t y);
  std::span<const PF_Pixel8> Row(int32_t y) const;

  // The record by which an effect knows these pixels, always at the same address.
  PF_EffectWorld* Record() { return &record; }

  // Says what a command did to the record and beside the pixels since the last call, and mends it.
  std::vector<std::string> TakeDamage();

 private:
  uint8_t* Pixels() const { return memory.get() + guardBytes; }
  size_t PixelBytes() const { return static_cast<size_t>(rowBytes) * static_cast<size_t>(height); }
  size_t OffsetOf(int32_t y) const {
    return static_cast<size_t>(rowBytes) * static_cast<size_t>(y);
  }
  size_t UsedRowBytes() const { return static_cast<size_t>(width) * sizeof(PF_Pixel8); }
  PF_EffectWorld MakeRecord() const;

  int32_t width;
  int32_t height;
  int32_t rowBytes;
  size_t guardBytes;
  std::unique_ptr<uint8_t[]> memory;
  PF_EffectWorld record;
};
