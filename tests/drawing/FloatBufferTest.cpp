// Catches resampling that shifts, dims or reaches beyond a picture, and lossy bytes.
#include "drawing/FloatBufferRGBA.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace {

// A picture whose value in column x and row y is valueAt(x, y), plus what sets the channels apart.
template <typename ValueAt>
void Paint(FloatBufferRGBA& buffer, int32_t width, int32_t height, ValueAt valueAt) {
  ASSERT_TRUE(buffer.Allocate(width, height, true));
  for (int32_t y = 0; y < height; ++y) {
    for (int32_t x = 0; x < width; ++x) {
      const float value = static_cast<float>(valueAt(x, y));
      buffer.Row(y)[x] = {value, value + 1, value + 2, value + 3};
    }
  }
}

TEST(FloatBuffer, ResamplingKeepsAPlaneAndEndsAtTheEdges) {
  FloatBufferRGBA source;
  Paint(source, 9, 7, [](int32_t x, int32_t y) { return 2 * x + 5 * y; });
  FloatBufferRGBA enlarged;
  ASSERT_TRUE(enlarged.Allocate(18, 28, true));
  FloatBufferRGBA::Resample(source, 9, 7, enlarged, 18, 28);
  for (int32_t y = 4; y < 20; ++y) {
    for (int32_t x = 2; x < 15; ++x) {
      const FloatPixelRGBA& pixel = enlarged.Row(y)[x];
      EXPECT_NEAR(pixel.blue, x + 1.25 * y, 1e-4) << x << ',' << y;
      EXPECT_NEAR(pixel.alpha, x + 1.25 * y + 3, 1e-4) << x << ',' << y;
    }
  }
  // Half a pixel past the last column: its own value stands for both that are missing, so that the
  // weights -1/16, 9/16, 9/16, -1/16 meet 14, 16, 16, 16.
  EXPECT_FLOAT_EQ(enlarged.Row(0)[17].blue, 16.125F);
}

TEST(FloatBuffer, BytesGoInAndOutAsFarAsBothReach) {
  uint8_t bytes[3][16];
  for (size_t i = 0; i < sizeof bytes; ++i) bytes[i / 16][i % 16] = static_cast<uint8_t>(i * 5);
  FloatBufferRGBA buffer;
  ASSERT_TRUE(buffer.Allocate(3, 2, false));
  buffer.ImportBGRA8(bytes[0], 4, 3, 16);
  EXPECT_EQ(buffer.Row(1)[2].red, static_cast<float>(bytes[1][10]) * 0.003921569F);
  uint8_t out[3][16];
  std::memset(out, 0xEE, sizeof out);
  buffer.ExportBGRA8(4, 3, 16, out[0]);
  for (size_t i = 0; i < sizeof bytes; ++i) {
    const bool held = i < 32 && i % 16 < 12;
    EXPECT_EQ(out[i / 16][i % 16], held ? bytes[i / 16][i % 16] : 0xEE) << i;
  }
  buffer.Row(0)[0] = {1.5F, -3.0F, std::nanf(""), 0.5F};
  buffer.ExportBGRA8(1, 1, 4, out[0]);
  constexpr uint8_t kHeld[] = {255, 0, 0, 127};
  EXPECT_EQ(std::memcmp(out[0], kHeld, 4), 0);
}

TEST(FloatBuffer, SizesThatCannotBeLeaveItAsItWas) {
  FloatBufferRGBA buffer;
  ASSERT_TRUE(buffer.Allocate(3, 2, true));
  EXPECT_EQ(buffer.RowBytes(), 64);
  FloatBufferRGBA others[8];
  for (int32_t i = 0; i < 8; ++i) {
    ASSERT_TRUE(others[i].Allocate(i + 1, 2, true));
    EXPECT_EQ(reinterpret_cast<uintptr_t>(others[i].Row(1)) % 32, 0U);
  }
  buffer.Row(1)[2].red = 0.5F;
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  constexpr int32_t kSizes[][2] = {{0, 2}, {3, -1}, {kMost, 1}, {1, kMost}, {kMost, kMost}};
  for (const auto& size : kSizes) {
    EXPECT_FALSE(buffer.Allocate(size[0], size[1], true)) << size[0] << " x " << size[1];
    EXPECT_EQ(buffer.Row(1)[2].red, 0.5F);
  }
  EXPECT_TRUE(buffer.EnsureCapacity(2, 2));
  EXPECT_EQ(buffer.Row(1)[2].red, 0.5F);
  ASSERT_TRUE(buffer.Allocate(3, 2, false));
  EXPECT_EQ(buffer.RowBytes(), 48);
  EXPECT_EQ(buffer.Row(1)[2].red, 0.0F);
  FloatBufferRGBA empty;
  FloatBufferRGBA::Resample(empty, 3, 2, buffer, 3, 2);
  FloatBufferRGBA::Resample(buffer, kMost, kMost, buffer, kMost, kMost);
}

}  // namespace
