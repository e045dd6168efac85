// A world whose surroundings are watched: bytes before and behind it, and those between its rows.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "graph/OutputWorld.h"

struct WorldShape {
  int32_t width = 0;
  int32_t height = 0;
  int32_t spareBytes = 0;  // between the end of a row and the next one
};

struct GuardedWorld {
  static constexpr size_t kGuardBytes = 4096;
  WorldShape shape;
  std::vector<uint8_t> bytes;  // the rows between two guards

  // Noise throughout, so that any stray write shows; the rows cleared unless `noisy`.
  GuardedWorld(WorldShape worldShape, bool noisy, uint32_t seed) : shape(worldShape) {
    const auto rows = static_cast<size_t>(RowBytes()) * static_cast<size_t>(shape.height);
    bytes.resize(2 * kGuardBytes + rows);
    std::minstd_rand random(seed + 1);
    for (uint8_t& byte : bytes) byte = static_cast<uint8_t>(random() >> 8U);
    if (!noisy) std::fill_n(bytes.begin() + kGuardBytes, rows, uint8_t{0});
  }

  int32_t RowBytes() const { return 4 * shape.width + shape.spareBytes; }

  PF_LayerDef AsOutput() {
    PF_LayerDef output{};
    output.data = reinterpret_cast<PF_Pixel*>(bytes.data() + kGuardBytes);
    output.rowbytes = RowBytes();
    output.width = shape.width;
    output.height = shape.height;
    return output;
  }

  OutputWorld World() { return MakeOutputWorld(AsOutput()); }

  // The four bytes of a pixel. A row begins at a whole number of pixels, whatever RowBytes() is.
  uint8_t* At(int64_t x, int64_t y) {
    return bytes.data() + kGuardBytes + 4 * (y * (RowBytes() / 4) + x);
  }
  PF_Pixel Pixel(int64_t x, int64_t y) {
    const uint8_t* lanes = At(x, y);
    return {lanes[0], lanes[1], lanes[2], lanes[3]};
  }
};

inline std::string TextOf(PF_Pixel pixel) {
  std::ostringstream text;
  text << int{pixel.alpha} << ' ' << int{pixel.red} << ' ' << int{pixel.green} << ' '
       << int{pixel.blue};
  return text.str();
}

// Leaves a picture for the eye: a PAM file, which most viewers open.
inline std::string WritePicture(GuardedWorld& world, const std::string& name) {
  std::string path = testing::TempDir() + name + ".pam";
  std::ofstream file(path, std::ios::binary);
  file << "P7\nWIDTH " << world.shape.width << "\nHEIGHT " << world.shape.height
       << "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
  for (int32_t y = 0; y < world.shape.height; ++y) {
    for (int32_t x = 0; x < world.shape.width; ++x) {
      const PF_Pixel pixel = world.Pixel(x, y);
      const uint8_t lanes[] = {pixel.red, pixel.green, pixel.blue, pixel.alpha};
      file.write(reinterpret_cast<const char*>(lanes), sizeof lanes);
    }
  }
  return path;
}

// Expects the same bytes in and around two worlds of one shape.
inline bool SamePicture(GuardedWorld& drawn, GuardedWorld& expected) {
  if (drawn.bytes == expected.bytes) return true;
  for (int32_t y = 0; y < drawn.shape.height; ++y) {
    for (int32_t x = 0; x < drawn.shape.width; ++x) {
      const std::string is = TextOf(drawn.Pixel(x, y));
      const std::string should = TextOf(expected.Pixel(x, y));
      if (is == should) continue;
      ADD_FAILURE() << "pixel " << x << ", " << y << " is " << is << ", not " << should << "; see "
                    << WritePicture(drawn, "drawn") << " and "
                    << WritePicture(expected, "expected");
      return false;
    }
  }
  ADD_FAILURE() << "bytes outside the world were written";
  return false;
}
