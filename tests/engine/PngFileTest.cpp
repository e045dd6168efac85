// Catches colours that come out wrong from some kind of PNG, and damaged ones that get through.
#include "engine/PngFile.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>

#include "engine/ExceptionInfo.h"
#include "tests/engine/PngBytes.h"

namespace {

struct CountedImage : ImageBuffer {
  int allocations = 0;

  void Allocate(int32_t newWidth, int32_t newHeight, bool alignRows) override {
    if (newWidth != width || newHeight != height) ++allocations;
    ImageBuffer::Allocate(newWidth, newHeight, alignRows);
  }
};

// 0 where the PNG was read, else what was thrown.
int32_t CodeOf(const std::vector<uint8_t>& bytes, ImageBuffer& image) {
  PngFile file;
  int32_t code = 0;
  try {
    file.ReadFile({"", bytes.data(), static_cast<uint32_t>(bytes.size())}, image);
  } catch (const App::ExceptionInfo& failure) {
    code = failure.code;
  }
  uint8_t byte = 0;
  EXPECT_EQ(file.Read(&byte, 1), 0U) << "the file is left open";
  return code;
}

ColorBGRA Expected(const TestPng& png, const PngKind& kind, size_t pixel) {
  const uint8_t* sample = &png.samples[pixel * png.pixelSize];
  const auto next = static_cast<size_t>(kind.depth / 8);  // a channel's low byte plays no part
  ColorBGRA color(0xFF000000U);
  if (kind.colorType == PNG_COLOR_TYPE_PALETTE) {
    color.red = sample[0];
    color.green = static_cast<uint8_t>(255 - sample[0]);
    color.blue = 7;
    if (kind.transparency && sample[0] < 128) color.alpha = sample[0];
    return color;
  }
  const bool isGrey = (kind.colorType & PNG_COLOR_MASK_COLOR) == 0;
  color.red = sample[0];
  color.green = sample[isGrey ? 0 : next];
  color.blue = sample[isGrey ? 0 : 2 * next];
  if ((kind.colorType & PNG_COLOR_MASK_ALPHA) != 0) color.alpha = sample[png.pixelSize - next];
  const bool isBlack = std::count(sample, sample + png.pixelSize, 0) == ptrdiff_t(png.pixelSize);
  if (kind.transparency && isBlack) color.alpha = 0;
  return color;
}

TEST(PngFile, EveryKindOfEightBitsOrMoreComesOutAsItsColors) {
  for (const PngKind& kind : AllPngKinds()) {
    SCOPED_TRACE(kind.What());
    const TestPng png = MakePng(kind, 13, 11);
    CountedImage image;
    image.Allocate(13, 11, true);  // rows of 16 pixels
    const int32_t code = CodeOf(png.bytes, image);
    ASSERT_EQ(code, kind.depth < 8 ? App::kWrongFormat : 0) << PngFile::lastError.data();
    EXPECT_EQ(image.allocations, 1);
    size_t pixel = 0;
    for (int32_t y = 0; y < 11 && code == 0; ++y) {
      for (int32_t x = 0; x < 13; ++x) {
        const ColorBGRA expected = Expected(png, kind, pixel++);
        EXPECT_EQ(image.Row(y)[x], expected) << x << ", " << y;
      }
      EXPECT_EQ(image.Row(y)[13], ColorBGRA()) << "the padding of row " << y;
    }
  }
}

TEST(PngFile, APieceOfAPngOrOneWithAChangedByteIsRefused) {
  for (const PngKind& kind : AllPngKinds()) {
    if (kind.depth < 8 || kind.transparency) continue;
    const std::vector<uint8_t> whole = MakePng(kind, 5, 4).bytes;
    for (size_t i = 0; i < whole.size(); ++i) {
      SCOPED_TRACE(kind.What() + ", byte " + std::to_string(i));
      ImageBuffer image;
      const std::vector<uint8_t> piece(whole.data(), whole.data() + i);
      EXPECT_EQ(CodeOf(piece, image), i < 8 ? App::kWrongFormat : App::kLibpngFailed);
      EXPECT_STREQ(PngFile::lastError.data(), i < 8 ? "" : "Read Error");
      std::vector<uint8_t> changed = whole;
      changed[i] ^= 0x11U;
      EXPECT_NE(CodeOf(changed, image), 0);
    }
  }
}

TEST(PngFile, OnlyASizeThatTheFileCantHoldIsRefusedBeforeMemoryIsTaken) {
  CountedImage image;
  EXPECT_EQ(CodeOf(MakePng({}, 1023, 1024, 1).bytes, image), 0) << "as flat as a PNG gets";
  EXPECT_EQ(image.RowBytes(), 1023 * 4);
  std::vector<uint8_t> huge = MakePng({}, 5, 4).bytes;
  for (const size_t side : {16U, 20U}) {  // 20000 x 20000
    huge[side + 2] = 20000 >> 8;
    huge[side + 3] = 20000 & 255;
  }
  const uLong checksum = crc32(0, &huge[12], 17);
  for (size_t i = 0; i < 4; ++i) huge[29 + i] = static_cast<uint8_t>(checksum >> (24 - 8 * i));
  EXPECT_EQ(CodeOf(huge, image), App::kLibpngFailed);
  EXPECT_EQ(image.allocations, 1);
}

}  // namespace
