// PNGs of every kind with random samples, written by libpng, with the samples that went in.
#pragma once

#include <png.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

struct PngKind {
  int colorType = PNG_COLOR_TYPE_RGB_ALPHA;
  int depth = 8;
  bool interlaced = false;
  bool transparency = false;  // a tRNS chunk
};

inline std::string Describe(const PngKind& kind) {
  return "colour type " + std::to_string(kind.colorType) + ", " + std::to_string(kind.depth) +
         " bits" + (kind.interlaced ? ", interlaced" : "") + (kind.transparency ? ", tRNS" : "");
}

// All that the format allows.
inline std::vector<PngKind> AllPngKinds() {
  std::vector<PngKind> kinds;
  for (const int colorType : {0, 2, 3, 4, 6}) {
    for (const int depth : {1, 2, 4, 8, 16}) {
      if (depth < 8 && colorType != 0 && colorType != 3) continue;
      if (depth == 16 && colorType == 3) continue;
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
  uint32_t width = 0;
  uint32_t channels = 0;
  std::vector<uint16_t> samples;  // row by row
  std::vector<png_color> palette;
  std::vector<uint8_t> paletteAlpha;  // of its first colours
  png_color_16 clear = {};            // the transparent colour: that of the first pixel

  uint16_t Sample(uint32_t x, uint32_t y, uint32_t channel) const {
    return samples[(y * width + x) * channels + channel];
  }
};

inline void FillSamples(TestPng& png, const PngKind& kind, uint32_t height) {
  std::mt19937 random(static_cast<uint32_t>(kind.colorType * 100 + kind.depth));
  const uint32_t end = 1U << kind.depth;
  png.samples.resize(size_t{png.width} * height * png.channels);
  for (uint16_t& sample : png.samples) sample = static_cast<uint16_t>(random() % end);
  const auto byte = [&] { return static_cast<uint8_t>(random()); };
  if (kind.colorType == PNG_COLOR_TYPE_PALETTE) {
    for (uint32_t i = 0; i < end; ++i) png.palette.push_back({byte(), byte(), byte()});
    for (uint32_t i = 0; i < end / 2; ++i) png.paletteAlpha.push_back(byte());
  } else if (png.channels == 3) {
    png.clear.red = png.samples[0];
    png.clear.green = png.samples[1];
    png.clear.blue = png.samples[2];
  } else {
    png.clear.gray = png.samples[0];
  }
}

inline TestPng MakePng(const PngKind& kind, uint32_t width, uint32_t height) {
  TestPng result;
  result.width = width;
  result.channels = kind.colorType == 2 ? 3 : kind.colorType == 4 ? 2 : kind.colorType == 6 ? 4 : 1;
  FillSamples(result, kind, height);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(
      png, &result.bytes,
      [](png_structp writer, png_bytep data, size_t size) {
        auto& bytes = *static_cast<std::vector<uint8_t>*>(png_get_io_ptr(writer));
        bytes.insert(bytes.end(), data, data + size);
      },
      nullptr);
  png_set_IHDR(png, info, width, height, kind.depth, kind.colorType,
               kind.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, 0, 0);
  if (!result.palette.empty()) {
    png_set_PLTE(png, info, result.palette.data(), static_cast<int>(result.palette.size()));
  }
  if (kind.transparency) {
    png_set_tRNS(png, info, result.paletteAlpha.data(),
                 static_cast<int>(result.paletteAlpha.size()), &result.clear);
  }
  png_write_info(png, info);
  png_set_packing(png);
  if (kind.depth == 16) png_set_swap(png);
  std::vector<uint8_t> image;  // one or two bytes a sample
  for (const uint16_t sample : result.samples) {
    image.push_back(static_cast<uint8_t>(sample));
    if (kind.depth == 16) image.push_back(static_cast<uint8_t>(sample >> 8));
  }
  std::vector<png_bytep> rows;
  for (uint32_t y = 0; y < height; ++y) rows.push_back(&image[image.size() / height * y]);
  png_write_image(png, rows.data());
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return result;
}
