// Catches bars that show a seam, a gap or an end too many where their picture is cut and put
// together.
#include "toolkit/ScrollStrip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kSide = 170;

void Clear(ImageBuffer& picture, float scale) {
  const auto side = static_cast<int32_t>(kSide * scale);
  picture.Allocate(side, side, false);
  picture.SetScale(scale);
  picture.SetScaleAware(true);
  picture.FillRect({0, 0, kSide, kSide}, ThemeColors::Black, 256, nullptr);
}

// The greatest difference of two pictures' pixels in green.
int32_t Difference(const ImageBuffer& a, const ImageBuffer& b) {
  int32_t most = 0;
  for (int32_t y = 0; y < a.Height(); ++y) {
    for (int32_t x = 0; x < a.Width(); ++x) {
      most = std::max(most, std::abs(a.Row(y)[x].green - b.Row(y)[x].green));
    }
  }
  return most;
}

TEST(ScrollStrip, ABarOfAnyLengthLooksLikeARoundRectangleDrawnAtOnce) {
  constexpr Rect kAll = {0, 0, kSide, kSide};
  ScrollStrip strip;
  for (const float scale : {1.0F, 2.0F}) {
    for (const bool across : {true, false}) {
      for (int32_t length = 14; length < 160; length += 3) {
        const Rect bar = across ? Rect{5, 9, 5 + length, 21} : Rect{9, 5, 21, 5 + length};
        ImageBuffer cut;
        ImageBuffer whole;
        Clear(cut, scale);
        Clear(whole, scale);
        strip.Draw({cut, kAll}, bar, across, ThemeColors::Gray204);
        FillRound({whole, kAll}, bar, ScrollStrip::kCornerRadius, ThemeColors::Gray204);
        // Blending a picture rounds otherwise than drawing a shape; a seam is darker by far more.
        ASSERT_LE(Difference(cut, whole), 6) << scale << ' ' << across << ' ' << length;
      }
    }
  }
}

}  // namespace
