// Catches wrong compositing, writing outside the clip or the picture, and scales that are applied
// twice or not at all.
#include "drawing/ImageBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "AllocationCount.h"
#include "drawing/Compositing.h"
#include "tests/drawing/GuardedPicture.h"

namespace {

TEST(ImageBuffer, CompositesAsThePlainArithmeticAtEveryAlphaOnEveryAlpha) {
  int wrong = 0;
  for (uint32_t i = 0; i < 0x1000000; i += 13) {
    const auto alpha = static_cast<int32_t>(i >> 16);
    const ColorBGRA under((i << 16) | (i & 0xFFFF));
    const ColorBGRA over(0x4D01FE00U | (i >> 8));
    ColorBGRA pixel = under;
    CompositePixel(pixel, over, alpha);
    if (!(pixel == PlainComposite(under, over, alpha))) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
}

// draw(picture, clip) draws on noise; after(pixel, x, y) says what becomes of a pixel inside the
// clip.
template <typename Draw, typename After>
void HoldAgainst(RandomPlaces& places, Draw draw, After after) {
  GuardedPicture drawn(9, 7, static_cast<uint32_t>(places.Number(0, 1000)));
  GuardedPicture expected = drawn;
  const Rect clip = places.Place();
  const bool clipped = places.Number(0, 2) > 0;
  draw(drawn, clipped ? &clip : nullptr);
  for (int64_t y = 0; y < 7; ++y) {
    for (int64_t x = 0; x < 9; ++x) {
      if (!clipped || Inside(clip, x, y)) after(expected.At(x, y), x, y);
    }
  }
  ASSERT_EQ(drawn.bytes, expected.bytes);
}

TEST(ImageBuffer, FillsAndFramesTouchWhatLiesInRectAndClipAndNothingElse) {
  RandomPlaces places(1);
  for (int32_t round = 0; round < 4000 && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    const Rect rect = places.Place();
    const int32_t opacity = places.Opacity();
    const int64_t edge = places.Edge();
    const ColorBGRA color(0x80C04020);
    const auto lay = [&](ColorBGRA& pixel) {
      pixel = opacity >= 256 ? color : PlainComposite(pixel, color, opacity);
    };
    HoldAgainst(
        places,
        [&](ImageBuffer& picture, auto clip) { picture.FillRect(rect, color, opacity, clip); },
        [&](ColorBGRA& pixel, int64_t x, int64_t y) {
          if (Inside(rect, x, y)) lay(pixel);
        });
    HoldAgainst(
        places,
        [&](ImageBuffer& picture, auto clip) {
          picture.DrawFrame(rect, color, static_cast<int32_t>(edge), opacity, clip);
        },
        [&](ColorBGRA& pixel, int64_t x, int64_t y) {
          const bool beside = x >= rect.left && x < rect.right;
          const bool between = y >= rect.top + edge && y < rect.bottom - edge;
          if (IsEmpty(rect)) return;
          if (beside && y >= rect.top && y < rect.top + edge) lay(pixel);
          if (between && x >= rect.left && x < rect.left + edge) lay(pixel);
          if (between && x >= rect.right - edge && x < rect.right) lay(pixel);
          if (beside && y >= rect.bottom - edge && y < rect.bottom) lay(pixel);
        });
  }
}

TEST(ImageBuffer, BlendsAndCopiesEachSourcePixelToItsPlaceAndNothingElse) {
  RandomPlaces places(2);
  const GuardedPicture source(8, 6, 100);
  for (int32_t round = 0; round < 6000 && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    const Rect part = places.Place();
    const Point at = {places.Edge(), places.Edge()};
    const int32_t opacity = places.Opacity();
    const bool blend = round % 2 == 0;
    HoldAgainst(
        places,
        [&](ImageBuffer& picture, auto clip) {
          if (blend) return source.BlendTo(picture, part, at.x, at.y, opacity, clip, false);
          source.CopyTo(picture, part, at.x, at.y, opacity, clip);
        },
        [&](ColorBGRA& pixel, int64_t x, int64_t y) {
          const int64_t fromX = x - at.x + part.left;
          const int64_t fromY = y - at.y + part.top;
          if (!source.Holds(fromX, fromY) || !Inside(part, fromX, fromY)) return;
          const ColorBGRA over = source.Row(static_cast<int32_t>(fromY))[fromX];
          const double share = std::clamp(opacity, 0, 256) / 256.0;
          const double alpha = blend ? std::floor(over.alpha * share) : opacity;
          pixel = !blend && opacity >= 256 ? over : PlainComposite(pixel, over, alpha);
        });
  }
}

struct Conversion {
  float scale;
  Rect logical;
  Rect physical;
};

TEST(ImageBuffer, ConvertsLogicalCoordinatesEdgeByEdge) {
  constexpr Conversion kCases[] = {
      {2.0F, {1, 0, 3, 2}, {2, 0, 6, 4}},   {1.5F, {1, 1, 2, 3}, {2, 2, 3, 5}},
      {1.5F, {-3, 0, 2, 2}, {-4, 0, 3, 3}}, {0.5F, {1, 1, 6, 5}, {1, 1, 3, 3}},
      {NAN, {0, 0, 4, 4}, {0, 0, 0, 0}},    {-1.0F, {-4, -4, 0, 0}, {4, 4, 0, 0}},
  };
  for (const Conversion& c : kCases) {
    GuardedPicture source(8, 6, 5);
    GuardedPicture drawn(9, 7, 6);
    GuardedPicture expected = drawn;
    source.SetScale(c.scale);
    drawn.SetScale(c.scale);
    drawn.SetScaleAware(true);
    const Rect& from = c.logical;
    const Rect& to = c.physical;
    drawn.FillRect({0, 0, 9, 7}, ColorBGRA(0x123456), 128, &from);
    drawn.FillRect(from, ColorBGRA(0x123456), 128, nullptr);
    source.BlendTo(drawn, from, from.left, from.top, 256, &from, false);
    source.CopyTo(drawn, from, 3, 0, 100, &from);
    for (int i = 0; i < 2; ++i) expected.FillRect(to, ColorBGRA(0x123456), 128, nullptr);
    source.BlendTo(expected, to, to.left, to.top, 256, &to, false);
    if (!std::isnan(c.scale)) source.CopyTo(expected, from, 3, 0, 100, &from);
    EXPECT_EQ(drawn.bytes, expected.bytes) << c.scale;
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
