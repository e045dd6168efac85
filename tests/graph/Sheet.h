// A sheet on which graphs are drawn side by side, each in a world of its own, and compared with the
// picture of that name beside these tests.
#pragma once

#include <gtest/gtest.h>
#include <png.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "AE_Effect.h"

// What a sheet shows where nothing was drawn: odd halves, and something of every colour.
constexpr PF_Pixel kGround = {254, 30, 60, 90};

struct Sheet {
  int32_t width = 0;
  int32_t height = 0;
  std::vector<PF_Pixel> pixels;

  Sheet(int32_t sheetWidth, int32_t sheetHeight)
      : width(sheetWidth),
        height(sheetHeight),
        pixels(static_cast<size_t>(width) * static_cast<size_t>(height), kGround) {}

  PF_Pixel& At(int32_t x, int32_t y) { return pixels[static_cast<size_t>(int64_t{y} * width + x)]; }

  // The part of the sheet that begins at x, y.
  PF_LayerDef Part(int32_t x, int32_t y, int32_t partWidth, int32_t partHeight) {
    PF_LayerDef part{};
    part.data = &At(x, y);
    part.rowbytes = 4 * width;
    part.width = partWidth;
    part.height = partHeight;
    return part;
  }
};

inline bool operator==(const PF_Pixel& a, const PF_Pixel& b) {
  return a.alpha == b.alpha && a.red == b.red && a.green == b.green && a.blue == b.blue;
}

// Expects the bytes of the picture; else it leaves what was drawn, to be looked at.
inline void ExpectPicture(const Sheet& sheet, const std::string& name) {
  Sheet expected(sheet.width, sheet.height);
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png_image_begin_read_from_file(&png, (GRAPH_PICTURES "/" + name).c_str());
  png.format = PNG_FORMAT_ARGB;
  if (PNG_IMAGE_SIZE(png) == 4 * expected.pixels.size()) {
    png_image_finish_read(&png, nullptr, expected.pixels.data(), 0, nullptr);
  }
  png_image_free(&png);
  if (sheet.pixels == expected.pixels) return;
  const std::string path = testing::TempDir() + name;
  png = {nullptr, PNG_IMAGE_VERSION, 0, 0, PNG_FORMAT_ARGB, 0, 0, 0, {}};
  png.width = static_cast<png_uint_32>(sheet.width);
  png.height = static_cast<png_uint_32>(sheet.height);
  png_image_write_to_file(&png, path.c_str(), 0, sheet.pixels.data(), 0, nullptr);
  const auto differing = std::ranges::mismatch(sheet.pixels, expected.pixels).in1;
  const auto index = differing - sheet.pixels.begin();
  ADD_FAILURE() << path << " isn't " << name << " from pixel " << index % sheet.width << ", "
                << index / sheet.width << " on";
}
