// PNGs of every kind with random samples, written by libpng, with the samples that went in.
#pragma once

#include <png.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

struct PngKind {
  int colorType = PNG_COLOR_TYPE_RGB_ALPHA;
  int depth = 8;
  bool interlaced = false;
  bool transparency = false;  // black, or half of the palette, lets through

  std::string What() const {
    return "colour type " + std::to_string(colorType) + ", " + std::to_string(depth) + " bits" +
           (interlaced ? ", interlaced" : "") + (transparency ? ", transparency" : "");
  }
};

// All that the format allows.
inline std::vector<PngKind> AllPngKinds() {
  std::vector<PngKind> kinds;
  for (const int colorType : {0, 2, 3, 4, 6}) {
    for (const int depth : {1, 2, 4, 8, 16}) {
      if (colorType == 3 ? depth == 16 : depth < 8 && colorType != 0) continue;
      for (const bool interlaced : {false, true}) {
        kinds.push_back({colorType, depth, interlaced, false});
        if (colorType < 4) kinds.push_back({colorType, depth, interlaced, true});
      }
    }
  }
  return kinds;
}

struct TestPng {
  std::vector<uint8_t> bytes;
  size_t pixelSize = 0;
  std::vector<uint8_t> samples;  // one byte each, or two with the high one first
};

// Palette entry i is the colour (i, 255 - i, 7), and where it lets through its alpha is i.
inline void AddColors(png_structp png, png_infop info, const PngKind& kind) {
  std::vector<png_color> palette;
  std::vector<uint8_t> alpha;
  for (int i = 0; i < 1 << kind.depth && kind.colorType == PNG_COLOR_TYPE_PALETTE; ++i) {
    const auto index = static_cast<uint8_t>(i);
    palette.push_back({index, static_cast<uint8_t>(255 - i), 7});
    if (i < 1 << (kind.depth - 1)) alpha.push_back(index);
  }
  const png_color_16 clear = {};
  if (!palette.empty()) png_set_PLTE(png, info, palette.data(), 1 << kind.depth);
  if (kind.transparency) {
    png_set_tRNS(png, info, alpha.data(), static_cast<int>(alpha.size()), &clear);
  }
}

// Samples are random below `end`; the first pixel is black.
inline TestPng MakePng(const PngKind& kind, uint32_t width, uint32_t height, uint32_t end = 256) {
  constexpr size_t kChannels[] = {1, 0, 3, 1, 2, 0, 4};
  TestPng result;
  result.pixelSize = kChannels[kind.colorType] * (kind.depth == 16 ? 2 : 1);
  result.samples.resize(size_t{width} * height * result.pixelSize);
  std::mt19937 random(1);
  if (kind.depth < 8) end = 1U << kind.depth;
  for (uint8_t& sample : result.samples) sample = static_cast<uint8_t>(random() % end);
  std::fill_n(result.samples.begin(), result.pixelSize, uint8_t{0});

  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  const png_rw_ptr append = [](png_structp writer, png_bytep data, size_t size) {
    auto& bytes = *static_cast<std::vector<uint8_t>*>(png_get_io_ptr(writer));
    bytes.insert(bytes.end(), data, data + size);
  };
  png_set_write_fn(png, &result.bytes, append, nullptr);
  png_set_IHDR(png, info, width, height, kind.depth, kind.colorType, kind.interlaced ? 1 : 0, 0, 0);
  AddColors(png, info, kind);
  std::vector<png_bytep> rows;
  for (uint32_t y = 0; y < height; ++y) {
    rows.push_back(&result.samples[size_t{y} * width * result.pixelSize]);
  }
  png_set_rows(png, info, rows.data());
  png_write_png(png, info, PNG_TRANSFORM_PACKING, nullptr);
  png_destroy_write_struct(&png, &info);
  return result;
}
