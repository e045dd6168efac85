// Catches colours that come out wrong from some kind of PNG, and damaged ones that get through.
#include "engine/PngFile.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <limits>

#include "engine/ExceptionInfo.h"
#include "tests/engine/PngBytes.h"

namespace {

struct CountedImage : ImageBuffer {
  int allocations = 0;

  void Allocate(int32_t newWidth, int32_t newHeight, bool alignRows) override {
    if (newWidth == width && newHeight == height) return;
    ++allocations;
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

ColorBGRA Expected(const TestPng& png, const PngKind& kind, uint32_t x, uint32_t y) {
  ColorBGRA color(0xFF000000U);
  if (kind.colorType == PNG_COLOR_TYPE_PALETTE) {
    const uint16_t index = png.Sample(x, y, 0);
    color.red = png.palette[index].red;
    color.green = png.palette[index].green;
    color.blue = png.palette[index].blue;
    if (kind.transparency && index < png.paletteAlpha.size()) color.alpha = png.paletteAlpha[index];
    return color;
  }
  const auto high = [&](uint32_t channel) {
    return static_cast<uint8_t>(png.Sample(x, y, channel) >> (kind.depth - 8));
  };
  const bool hasColor = png.channels >= 3;
  color.red = high(0);
  color.green = high(hasColor ? 1 : 0);
  color.blue = high(hasColor ? 2 : 0);
  if (png.channels % 2 == 0) color.alpha = high(png.channels - 1);
  if (kind.transparency) {
    bool isClear = true;
    for (uint32_t channel = 0; channel < png.channels; ++channel) {
      isClear = isClear && png.Sample(x, y, channel) == png.Sample(0, 0, channel);
    }
    if (isClear) color.alpha = 0;
  }
  return color;
}

TEST(PngFile, EveryKindOfEightBitsOrMoreComesOutAsItsColors) {
  for (const PngKind& kind : AllPngKinds()) {
    SCOPED_TRACE(Describe(kind));
    const TestPng png = MakePng(kind, 13, 11);
    ImageBuffer image;
    if (kind.depth < 8) {
      EXPECT_EQ(CodeOf(png.bytes, image), App::kWrongFormat);
      continue;
    }
    ASSERT_EQ(CodeOf(png.bytes, image), 0) << PngFile::lastError.data();
    ASSERT_EQ(image.Bounds(), (Rect{0, 0, 13, 11}));
    for (uint32_t y = 0; y < 11; ++y) {
      for (uint32_t x = 0; x < 13; ++x) {
        const ColorBGRA got = image.Row(static_cast<int32_t>(y))[x];
        EXPECT_EQ(got, Expected(png, kind, x, y)) << x << ", " << y;
      }
    }
  }
}

TEST(PngFile, AnImageOfTheRightSizeIsFilledWhereItLies) {
  const TestPng png = MakePng({PNG_COLOR_TYPE_RGB_ALPHA}, 13, 11);
  ImageBuffer plain;
  ASSERT_EQ(CodeOf(png.bytes, plain), 0);
  CountedImage padded;
  padded.Allocate(13, 11, true);
  ASSERT_GT(padded.RowBytes(), 13 * 4);
  ASSERT_EQ(CodeOf(png.bytes, padded), 0);
  EXPECT_EQ(padded.allocations, 1);
  for (int32_t y = 0; y < 11; ++y) {
    EXPECT_TRUE(std::equal(plain.Row(y), plain.Row(y) + 13, padded.Row(y))) << y;
    EXPECT_EQ(padded.Row(y)[13], ColorBGRA()) << "the padding of row " << y;
  }
}

TEST(PngFile, APieceOfAPngOrOneWithAChangedByteIsRefused) {
  for (const PngKind& kind : AllPngKinds()) {
    if (kind.depth < 8 || kind.transparency) continue;
    const TestPng whole = MakePng(kind, 5, 4);
    for (size_t i = 0; i < whole.bytes.size(); ++i) {
      SCOPED_TRACE(Describe(kind) + ", byte " + std::to_string(i));
      ImageBuffer image;
      const std::vector<uint8_t> piece(whole.bytes.begin(),
                                       whole.bytes.begin() + static_cast<ptrdiff_t>(i));
      EXPECT_EQ(CodeOf(piece, image), i < 8 ? App::kWrongFormat : App::kLibpngFailed);
      std::vector<uint8_t> changed = whole.bytes;
      changed[i] ^= 0x11U;
      EXPECT_NE(CodeOf(changed, image), 0);
    }
  }
}

TEST(PngFile, WhatLibpngSaidLastsUntilTheNextRead) {
  std::vector<uint8_t> bytes = MakePng({PNG_COLOR_TYPE_RGB_ALPHA}, 5, 4).bytes;
  ImageBuffer image;
  EXPECT_EQ(CodeOf({bytes.begin(), bytes.end() - 20}, image), App::kLibpngFailed);
  EXPECT_STRNE(PngFile::lastError.data(), "");
  EXPECT_EQ(CodeOf(bytes, image), 0);
  EXPECT_STREQ(PngFile::lastError.data(), "");
}

// A header that is right by its checksum, and claims more than the file could hold.
TEST(PngFile, AHugeImageInATinyFileTakesNoMemory) {
  std::vector<uint8_t> bytes = MakePng({PNG_COLOR_TYPE_RGB_ALPHA}, 5, 4).bytes;
  constexpr size_t kHeader = 12;  // the chunk's name, then width and height
  for (size_t side : {size_t{16}, size_t{20}}) {
    bytes[side + 2] = 20000 >> 8;
    bytes[side + 3] = 20000 & 255;
  }
  const uLong checksum = crc32(0, &bytes[kHeader], 17);
  for (size_t i = 0; i < 4; ++i) bytes[29 + i] = static_cast<uint8_t>(checksum >> (24 - 8 * i));
  CountedImage image;
  EXPECT_EQ(CodeOf(bytes, image), App::kLibpngFailed);
  EXPECT_EQ(image.allocations, 0);
}

TEST(PngFile, AFlatImageIsReadHoweverWellItPacks) {
  // 4 million equal samples are the hardest case for telling a huge image from a cut-off one.
  std::vector<uint8_t> bytes;
  png_image flat{};
  flat.version = PNG_IMAGE_VERSION;
  flat.width = flat.height = 2048;
  flat.format = PNG_FORMAT_GRAY;
  const std::vector<uint8_t> samples(2048U * 2048U, 0);
  png_alloc_size_t size = samples.size();
  bytes.resize(size);
  ASSERT_NE(png_image_write_to_memory(&flat, bytes.data(), &size, 0, samples.data(), 0, nullptr),
            0);
  bytes.resize(size);
  ImageBuffer image;
  EXPECT_EQ(CodeOf(bytes, image), 0) << size << " bytes";
  EXPECT_EQ(image.Row(2047)[2047], ColorBGRA(0xFF000000U));
}

TEST(XFile, ReadsWhatIsLeftAndStaysInside) {
  constexpr uint8_t kBytes[] = {1, 2, 3, 4, 5};
  XFile file;
  file.Open({"", kBytes, 5});
  uint8_t got[8] = {};
  EXPECT_EQ(file.Read(got, 3), 3U);
  EXPECT_EQ(file.Read(got, 8), 2U);
  EXPECT_EQ(got[0], 4);
  EXPECT_EQ(got[2], 3) << "written behind the end";
  file.Seek(std::numeric_limits<uint32_t>::max());
  EXPECT_EQ(file.Read(got, 1), 0U);
  file.Seek(1);
  EXPECT_EQ(file.Read(got, 1), 1U);
  EXPECT_EQ(got[0], 2);
}

}  // namespace
