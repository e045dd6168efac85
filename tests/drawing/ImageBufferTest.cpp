// Catches wrong compositing, writing outside the clip or the picture, and scales that are applied
// twice or not at all.
#include "drawing/ImageBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "AllocationCount.h"
#include "drawing/ClippedPlacement.h"
#include "tests/drawing/GuardedPicture.h"

namespace {

TEST(ImageBuffer, FillsAsThePlainArithmeticAtEveryOpacityOnEveryAlphaAndChannel) {
  constexpr ColorBGRA kColor(0x4D01FE80);
  ImageBuffer canvas;
  canvas.Allocate(256, 256, false);
  int wrong = 0;
  for (int32_t opacity = 0; opacity <= 256; ++opacity) {
    for (int32_t y = 0; y < 256; ++y) {
      for (int32_t x = 0; x < 256; ++x) {
        canvas.Row(y)[x] = ColorBGRA(static_cast<uint32_t>((y << 24) | x * 0x10101));
      }
    }
    canvas.FillRect(canvas.Bounds(), kColor, opacity, nullptr);
    for (int32_t y = 0; y < 256; ++y) {
      for (int32_t x = (y * 7 + opacity) % 16; x < 256; x += 16) {
        const ColorBGRA before(static_cast<uint32_t>((y << 24) | x * 0x10101));
        const ColorBGRA expected =
            opacity == 256 ? kColor : PlainComposite(before, kColor, opacity);
        if (!(canvas.Row(y)[x] == expected)) ++wrong;
      }
    }
  }
  EXPECT_EQ(wrong, 0);
}

TEST(ImageBuffer, FillsAndFramesTouchWhatLiesInRectAndClipAndNothingElse) {
  RandomPlaces places(1);
  for (uint32_t round = 0; round < 4000; ++round) {
    GuardedPicture drawn(9, 7, round);
    GuardedPicture expected = drawn;
    const Rect rect = places.Place();
    const Rect clip = places.Place();
    const bool clipped = places.Number(0, 2) > 0;
    const int32_t opacity = places.Opacity();
    const int32_t thickness = places.Edge();
    const ColorBGRA color(0x80C04020);
    const bool frame = places.Number(0, 1) == 0;
    if (frame) {
      drawn.DrawFrame(rect, color, thickness, opacity, clipped ? &clip : nullptr);
    } else {
      drawn.FillRect(rect, color, opacity, clipped ? &clip : nullptr);
    }
    const int64_t edge = thickness;
    for (int64_t y = 0; y < 7 && !IsEmpty(rect); ++y) {
      for (int64_t x = 0; x < 9; ++x) {
        if (clipped && !Inside(clip, x, y)) continue;
        const bool beside = x >= rect.left && x < rect.right;
        const bool between = y >= rect.top + edge && y < rect.bottom - edge;
        int layers = Inside(rect, x, y) ? 1 : 0;
        if (frame) {
          layers = (beside && y >= rect.top && y < rect.top + edge ? 1 : 0) +
                   (beside && y >= rect.bottom - edge && y < rect.bottom ? 1 : 0) +
                   (between && x >= rect.left && x < rect.left + edge ? 1 : 0) +
                   (between && x >= rect.right - edge && x < rect.right ? 1 : 0);
        }
        ColorBGRA& pixel = expected.At(x, y);
        for (; layers > 0; --layers) {
          pixel = opacity >= 256 ? color : PlainComposite(pixel, color, opacity);
        }
      }
    }
    ASSERT_EQ(drawn.bytes, expected.bytes) << "round " << round << (frame ? ", frame" : ", fill");
  }
}

TEST(ImageBuffer, BlendsAndCopiesEachSourcePixelToItsPlaceAndNothingElse) {
  RandomPlaces places(2);
  for (uint32_t round = 0; round < 6000; ++round) {
    const GuardedPicture source(8, 6, round + 100);
    GuardedPicture drawn(9, 7, round);
    GuardedPicture expected = drawn;
    const Rect part = places.Place();
    const Rect clip = places.Place();
    const bool clipped = places.Number(0, 2) > 0;
    const int32_t x0 = places.Edge();
    const int32_t y0 = places.Edge();
    const int32_t opacity = places.Opacity();
    const bool blend = places.Number(0, 1) == 0;
    if (blend) {
      source.BlendTo(drawn, part, x0, y0, opacity, clipped ? &clip : nullptr, false);
    } else {
      source.CopyTo(drawn, part, x0, y0, opacity, clipped ? &clip : nullptr);
    }
    for (int64_t y = 0; y < 7; ++y) {
      for (int64_t x = 0; x < 9; ++x) {
        const int64_t fromX = x - x0 + part.left;
        const int64_t fromY = y - y0 + part.top;
        if (!source.Holds(fromX, fromY) || !Inside(part, fromX, fromY)) continue;
        if (clipped && !Inside(clip, x, y)) continue;
        const ColorBGRA over = source.Row(static_cast<int32_t>(fromY))[fromX];
        const double share = std::clamp(opacity, 0, 256) / 256.0;
        const double alpha = blend ? std::floor(over.alpha * share) : std::max(opacity, 0);
        ColorBGRA& pixel = expected.At(x, y);
        pixel = !blend && opacity >= 256 ? over : PlainComposite(pixel, over, alpha);
      }
    }
    ASSERT_EQ(drawn.bytes, expected.bytes) << "round " << round << (blend ? ", blend" : ", copy");
  }
}

struct Drawing {
  const char* what;
  float scale;
  bool physical;      // of the blend
  Rect logicalRect;   // of fill and blended part
  Rect expectedRect;  // in physical pixels
  int32_t logicalX;
  int32_t expectedX;
};

TEST(ImageBuffer, ConvertsLogicalCoordinatesEdgeByEdge) {
  constexpr Drawing kCases[] = {
      {"doubled", 2.0F, false, {1, 0, 3, 2}, {2, 0, 6, 4}, 1, 2},
      {"by one and a half, up from the half", 1.5F, false, {1, 1, 2, 3}, {2, 2, 3, 5}, 1, 2},
      {"toward zero below zero", 1.5F, false, {-3, 0, 2, 2}, {-4, 0, 3, 3}, -1, -1},
      {"halved", 0.5F, false, {1, 1, 6, 5}, {1, 1, 3, 3}, 3, 2},
      {"physical blend", 2.0F, true, {1, 0, 3, 2}, {1, 0, 3, 2}, 3, 3},
      {"a scale that is no number", NAN, false, {0, 0, 4, 4}, {0, 0, 0, 0}, 0, 0},
      {"a scale below zero", -1.0F, false, {-4, -4, 0, 0}, {0, 0, 0, 0}, 0, 0},
  };
  for (const Drawing& c : kCases) {
    GuardedPicture source(8, 6, 5);
    GuardedPicture drawn(9, 7, 6);
    GuardedPicture expected = drawn;
    drawn.SetScaleAware(true);
    for (ImageBuffer* picture :
         {static_cast<ImageBuffer*>(&source), static_cast<ImageBuffer*>(&drawn)}) {
      picture->SetScale(c.scale);
    }
    const ColorBGRA color(0xFF123456);
    if (!c.physical) {
      drawn.FillRect({0, 0, 9, 7}, color, 128, &c.logicalRect);
      drawn.FillRect(c.logicalRect, color, 128, nullptr);
      expected.FillRect(c.expectedRect, color, 128, nullptr);
      expected.FillRect(c.expectedRect, color, 128, nullptr);
    }
    const Rect part = c.logicalRect;
    source.BlendTo(drawn, part, c.logicalX, 0, 256, &c.logicalRect, c.physical);
    source.BlendTo(expected, c.expectedRect, c.expectedX, 0, 256, &c.expectedRect, false);
    EXPECT_EQ(drawn.bytes, expected.bytes) << c.what;
  }
}

TEST(ImageBuffer, APictureOfScaleOneIsStretchedOnAScreenOfScaleTwo) {
  const GuardedPicture icon(3, 2, 1);
  for (const bool blend : {true, false}) {
    GuardedPicture screen(9, 7, 2);
    GuardedPicture expected = screen;
    screen.SetScale(2.0F);
    screen.SetScaleAware(true);
    const Rect clip = {1, 0, 4, 3};
    if (blend) {
      icon.BlendTo(screen, icon.Bounds(), 1, 1, 100, &clip, true);
    } else {
      icon.CopyTo(screen, icon.Bounds(), 1, 1, 100, &clip);
    }
    for (int32_t y = 2; y < 6; ++y) {
      for (int32_t x = 2; x < 8; ++x) {
        const ColorBGRA over = icon.Row(y / 2 - 1)[x / 2 - 1];
        ColorBGRA& pixel = expected.At(x, y);
        pixel = blend ? PlainComposite(pixel, over, std::floor(over.alpha * 100 / 256.0)) : over;
      }
    }
    EXPECT_EQ(screen.bytes, expected.bytes) << (blend ? "blend" : "copy");
  }
}

TEST(ImageBuffer, AScreenThatConvertsNothingTakesPicturesOfAnyScaleAsTheyAre) {
  GuardedPicture icon(3, 2, 1);
  GuardedPicture screen(9, 7, 2);
  GuardedPicture expected = screen;
  icon.CopyTo(expected, icon.Bounds(), 1, 1, 100, nullptr);
  icon.SetScale(2.0F);
  icon.CopyTo(screen, icon.Bounds(), 1, 1, 100, nullptr);
  EXPECT_EQ(screen.bytes, expected.bytes);
}

TEST(ImageBuffer, APictureCanBeDrawnOntoItself) {
  GuardedPicture picture(9, 7, 3);
  const GuardedPicture before = picture;
  picture.CopyTo(picture, {0, 0, 8, 7}, 1, 0, 256, nullptr);
  for (int32_t y = 0; y < 7; ++y) {
    EXPECT_TRUE(std::equal(before.Row(y), before.Row(y) + 8, picture.Row(y) + 1)) << y;
  }
}

TEST(ImageBuffer, DrawingAllocatesNothing) {
  GuardedPicture source(8, 6, 1);
  GuardedPicture target(64, 48, 2);
  target.SetScaleAware(true);
  const int64_t before = AllocationCount();
  for (const float scale : {1.0F, 2.0F}) {
    target.SetScale(scale);
    target.FillRect({0, 0, 20, 20}, ColorBGRA(0), 256, nullptr);
    target.DrawFrame({0, 0, 20, 20}, ColorBGRA(0), 2, 128, nullptr);
    source.BlendTo(target, source.Bounds(), 1, 1, 256, nullptr, false);
    source.CopyTo(target, source.Bounds(), 1, 1, 256, nullptr);
    source.ScaleTo(target, source.Bounds(), {0, 0, 30, 4}, nullptr, {.boxFilter = true});
  }
  EXPECT_EQ(AllocationCount() - before, 0);
}

}  // namespace
