// Catches icons at the wrong size or scale, and damage by a resource that can't be loaded.
#include "drawing/ScaledIcon.h"

#include <gtest/gtest.h>

#include <string_view>

#include "platform/NamedResource.h"
#include "tests/engine/PngBytes.h"

// The resources of this test: a picture under both kinds of name, and a piece of it.
NamedResource FindNamedResource(ModuleHandle /*module*/, const char* name, const char* type) {
  static const std::vector<uint8_t> whole = MakePng({}, 39, 32).bytes;
  const auto size = static_cast<uint32_t>(whole.size());
  const std::string_view wanted(name);
  if (std::string_view(type) != "PNG") return {};
  if (wanted == "Icon_2X" || wanted == "Single") return {whole.data(), size};
  return wanted == "Damaged_2X" ? NamedResource{whole.data(), size - 30} : NamedResource{};
}

namespace {

struct IconCase {
  const char* fileName;
  float wantedScale;
  bool rescale;
  int32_t width, height;  // those of the former picture where nothing is loaded
  float scale;
};

constexpr ColorBGRA kFormer(0x12345678);
constexpr IconCase kIconCases[] = {
    {"Icon.png", 2.0F, true, 39, 32, 2.0F},    {"Icon.PNG", 3.0F, true, 39, 32, 3.0F},
    {"Icon.png", 1.5F, true, 29, 24, 1.5F},    {"Icon.png", 0.5F, true, 39, 32, 0.5F},
    {"Icon.png", 1.0F, false, 7, 5, 1.0F},     {"Single.png", 1.0F, false, 39, 32, 1.0F},
    {"Single.png", 2.0F, false, 39, 32, 1.0F}, {"Single.png", 1.5F, true, 58, 48, 1.5F},
    {"Single.png", 1e9F, true, 39, 32, 1.0F},  {"Missing.png", 2.0F, false, 7, 5, 1.0F},
    {"Damaged.png", 1.5F, false, 7, 5, 1.5F},  {"Icon.Png", 2.0F, false, 7, 5, 2.0F},
    {"Icon.jpg", 2.0F, false, 7, 5, 2.0F},     {"Icon.jpeg", 2.0F, false, 7, 5, 9.0F},
    {".png", 2.0F, false, 7, 5, 9.0F},         {"", 2.0F, false, 7, 5, 9.0F},
    {"Single.png", 0.01F, true, 39, 32, 1.0F},
};

TEST(ScaledIcon, ComesAtTheScaleOfWhatThereIs) {
  for (const IconCase& icon : kIconCases) {
    SCOPED_TRACE(std::string(icon.fileName) + " at " + std::to_string(icon.wantedScale));
    NativeImageBuffer picture;
    picture.Allocate(7, 5, false);
    picture.SetScale(9.0F);
    picture.Row(4)[6] = kFormer;
    LoadScaledIcon(picture, icon.fileName, nullptr, icon.wantedScale, icon.rescale);
    ASSERT_EQ(picture.Bounds(), (Rect{0, 0, icon.width, icon.height}));
    EXPECT_EQ(picture.Scale(), icon.scale);
    EXPECT_EQ(picture.Row(4)[6] == kFormer, icon.width == 7);
  }
}

TEST(ScaledIcon, KeepsThePictureAtAnotherSize) {
  NativeImageBuffer whole;
  NativeImageBuffer reduced;
  NativeImageBuffer doubled;
  LoadScaledIcon(whole, "Icon.png", nullptr, 2.0F, true);
  LoadScaledIcon(reduced, "Icon.png", nullptr, 1.5F, true);
  LoadScaledIcon(doubled, "Single.png", nullptr, 2.0F, true);
  // A reduced pixel is the mean of four, half a step apart. A step is 39 / 29 by 32 / 24 pixels:
  // pixel (1, 2) begins at 1.34, 2.67 and its far corner is at 2.02, 3.33.
  const auto green = [&](int32_t x, int32_t y) { return whole.Row(y)[x].green; };
  EXPECT_EQ(reduced.Row(2)[1].green, (green(1, 2) + green(2, 2) + green(1, 3) + green(2, 3)) / 4);
  // Every other pixel of a doubled one stands on one of the whole, and a float's dust is cut off.
  for (int32_t y = 0; y < 32; ++y) {
    for (int32_t x = 0; x < 39; ++x) {
      EXPECT_NEAR(doubled.Row(y + y)[x + x].green, green(x, y), 1) << x << ", " << y;
    }
  }
}

}  // namespace
