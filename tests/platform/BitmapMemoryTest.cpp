// Catches pictures that aren't clear to begin with, rows upside down, and blits that land
// elsewhere.
#include "platform/BitmapMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <span>
#include <vector>

namespace {

constexpr int32_t kWidth = 9;
constexpr int32_t kHeight = 7;

class Picture {
 public:
  Picture() : memory(AllocateBitmap(kWidth, kHeight)) {}
  ~Picture() { FreeBitmap(memory); }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  const BitmapMemory& Memory() const { return memory; }
  std::vector<uint32_t> Copy() const {
    std::vector<uint32_t> pixels(kWidth * kHeight);
    std::memcpy(pixels.data(), memory.pixels, pixels.size() * sizeof(uint32_t));
    return pixels;
  }
  void Store(std::span<const uint32_t> pixels) {
    std::memcpy(memory.pixels, pixels.data(), pixels.size_bytes());
  }

 private:
  BitmapMemory memory;
};

TEST(BitmapMemory, IsClearWhateverWasThereBefore) {
  for (int round = 0; round < 50; ++round) {
    Picture picture;
    ASSERT_NE(picture.Memory().pixels, nullptr);
    ASSERT_EQ(picture.Copy(), std::vector<uint32_t>(kWidth * kHeight, 0U)) << round;
    picture.Store(std::vector<uint32_t>(kWidth * kHeight, 0xFFFFFFFFU));
  }
}

TEST(BitmapMemory, IsNoneWhereTheSystemCannotCountItsBytes) {
  constexpr int32_t kMost = 2147483647;
  EXPECT_EQ(AllocateBitmap(kMost, kMost).pixels, nullptr);
}

TEST(BitmapMemory, BlitsFourBytesAPixelFromTheTopRow) {
  Picture source;
  if (source.Memory().surface == nullptr) return;  // a system without surfaces draws nothing
  std::vector<uint32_t> from(kWidth * kHeight);
  std::ranges::generate(from, [next = 0x80402010U]() mutable { return next += 0x01020305U; });
  source.Store(from);

  // 4 x 3 pixels at 3,1 go to 5,4: the last row and the last column of the target.
  Picture target;
  BlitBitmap(source.Memory(), target.Memory().surface, 3, 1, 4, 3, 5, 4);
  const std::vector<uint32_t> to = target.Copy();
  for (int32_t y = 0; y < kHeight; ++y) {
    for (int32_t x = 0; x < kWidth; ++x) {
      const bool covered = x >= 5 && y >= 4;
      const auto pixel = [](int32_t column, int32_t row) {
        return static_cast<size_t>(row * kWidth + column);
      };
      EXPECT_EQ(to[pixel(x, y)], covered ? from[pixel(x - 2, y - 3)] : 0U) << x << ", " << y;
    }
  }
}

}  // namespace
