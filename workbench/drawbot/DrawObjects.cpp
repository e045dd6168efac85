// Counted references, and images in the canvas's own layout.
#include "workbench/drawbot/DrawObjects.h"

#include <algorithm>
#include <atomic>

namespace {

constexpr size_t kReferenceCount = size_t{1} << 20;

// References are addresses in here; nothing is stored at them.
char referenceSpace[kReferenceCount];
std::atomic<size_t> nextReference = 0;

uint32_t Premultiplied(uint32_t channel, uint32_t alpha) {
  return (channel * alpha + 127U) / 255U;
}

// pixel   blue, green, red, alpha in memory order
uint32_t CanvasPixel(const uint8_t* pixel, DRAWBOT_PixelLayout layout) {
  const uint32_t alpha = layout == kDRAWBOT_PixelLayout_32BGR ? 255U : pixel[3];
  uint32_t result = alpha << 24;
  for (uint32_t i = 0; i < 3; ++i) {
    // A premultiplied colour above its alpha is none; the canvas would wrap around.
    const uint32_t channel = layout == kDRAWBOT_PixelLayout_32BGRA_Straight
                                 ? Premultiplied(pixel[i], alpha)
                                 : std::min<uint32_t>(pixel[i], alpha);
    result |= channel << (8 * i);
  }
  return result;
}

}  // namespace

bool IsKnownLayout(DRAWBOT_PixelLayout layout) {
  return layout == kDRAWBOT_PixelLayout_32BGR || layout == kDRAWBOT_PixelLayout_32BGRA_Straight ||
         layout == kDRAWBOT_PixelLayout_32BGRA_Premul;
}

DrawImage CopyImage(int32_t width, int32_t height, int32_t rowBytes, DRAWBOT_PixelLayout layout,
                    const void* data) {
  DrawImage image{width, height, {}};
  image.pixels.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
  for (int32_t y = 0; y < height; ++y) {
    const uint8_t* row = static_cast<const uint8_t*>(data) + int64_t{y} * rowBytes;
    for (int32_t x = 0; x < width; ++x) {
      image.pixels.push_back(CanvasPixel(row + int64_t{x} * 4, layout));
    }
  }
  return image;
}

void* DrawObjects::Add(DrawObject object) {
  void* reference = &referenceSpace[nextReference++ % kReferenceCount];
  live.insert_or_assign(reference, Entry{std::move(object)});
  return reference;
}

bool DrawObjects::Retain(const void* reference) {
  const auto found = live.find(reference);
  if (found == live.end()) return false;
  ++found->second.count;
  return true;
}

bool DrawObjects::Release(const void* reference) {
  const auto found = live.find(reference);
  if (found == live.end()) return false;
  if (--found->second.count == 0) live.erase(found);
  return true;
}

std::vector<std::string> DrawObjects::LeftOver() const {
  constexpr std::array<const char*, std::variant_size_v<DrawObject>> kNames = {
      "pen(s)", "brush(es)", "font(s)", "path(s)", "image(s)"};
  std::array<int, kNames.size()> counts{};
  for (const auto& [reference, entry] : live) ++counts[entry.object.index()];
  std::vector<std::string> phrases;
  for (size_t i = 0; i < kNames.size(); ++i) {
    if (counts[i] > 0) phrases.push_back(std::to_string(counts[i]) + " " + kNames[i]);
  }
  return phrases;
}
