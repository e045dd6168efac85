// Catches pictures that aren't clear to begin with, rows upside down, and blits that land
// elsewhere.
#include "platform/BitmapMemory.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

TEST(BitmapMemory, BlitsFourBytesAPixelFromTheTopRow) {
  constexpr int32_t kWidth = 9;
  constexpr int32_t kHeight = 7;
  using Pixels = std::array<std::array<uint32_t, kWidth>, kHeight>;
  const BitmapMemory source = AllocateBitmap(kWidth, kHeight);
  const BitmapMemory target = AllocateBitmap(kWidth, kHeight);
  Pixels from{};
  EXPECT_EQ(std::memcmp(source.pixels, from.data(), sizeof(from)), 0);
  uint32_t next = 0x80402010U;
  for (auto& row : from) {
    for (uint32_t& pixel : row) pixel = next += 0x01020305U;
  }
  std::memcpy(source.pixels, from.data(), sizeof(from));

  // 4 x 3 pixels at 3,1 go to 5,4: the last row and the last column of the target.
  BlitBitmap(source, target.surface, 3, 1, 4, 3, 5, 4);
  Pixels expected{};
  for (size_t y = 4; y < kHeight && target.surface != nullptr; ++y) {
    for (size_t x = 5; x < kWidth; ++x) expected.at(y).at(x) = from.at(y - 3).at(x - 2);
  }
  EXPECT_EQ(std::memcmp(target.pixels, expected.data(), sizeof(expected)), 0);
  FreeBitmap(source);
  FreeBitmap(target);
}
