// Blends pixels with a plain or a checkered ground.
#include "workbench/export/Ground.h"

namespace {

constexpr int32_t kSquarePixels = 16;
constexpr int kLightGrey = 0x99;
constexpr int kDarkGrey = 0x66;

// The square in the top left corner is a light one.
int GreyAt(Ground ground, int32_t x, int32_t y) {
  if (ground == Ground::kBlack) return 0;
  const bool isLight = (x / kSquarePixels + y / kSquarePixels) % 2 == 0;
  return isLight ? kLightGrey : kDarkGrey;
}

// Rounded to the nearest.
A_u_char Blend(int channel, int grey, int alpha) {
  return static_cast<A_u_char>((channel * alpha + grey * (255 - alpha) + 127) / 255);
}

PF_Pixel8 Over(const PF_Pixel8& pixel, int grey) {
  return {255, Blend(pixel.red, grey, pixel.alpha), Blend(pixel.green, grey, pixel.alpha),
          Blend(pixel.blue, grey, pixel.alpha)};
}

}  // namespace

FramePixels LayOver(Ground ground, const FramePixels& frame, std::vector<PF_Pixel8>& room) {
  if (ground == Ground::kNone) return frame;
  const auto width = static_cast<size_t>(frame.width);
  room.resize(width * static_cast<size_t>(frame.height));
  PF_Pixel8* out = room.data();
  for (int32_t y = 0; y < frame.height; ++y) {
    const PF_Pixel8* row = frame.Row(y);
    for (int32_t x = 0; x < frame.width; ++x) *out++ = Over(row[x], GreyAt(ground, x, y));
  }
  return {room.data(), static_cast<int32_t>(width * sizeof(PF_Pixel8)), frame.width, frame.height};
}
