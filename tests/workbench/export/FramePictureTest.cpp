// Catches a PNG of nothing, frames that get each other's names, and grounds that shine through
// where they should not.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "workbench/Failure.h"
#include "workbench/export/FrameAsPng.h"
#include "workbench/export/FrameNames.h"
#include "workbench/export/Ground.h"

namespace {

// Pixels in rows that are longer than they need to be.
struct Picture {
  Picture(int32_t width, int32_t height)
      : stride(width + 3), pixels(static_cast<size_t>(stride * height), PF_Pixel8{1, 2, 3, 4}) {
    frame = {pixels.data(), stride * 4, width, height};
  }
  PF_Pixel8& At(int32_t x, int32_t y) {
    return pixels.at(static_cast<size_t>(ptrdiff_t{y} * stride + x));
  }

  int32_t stride;
  std::vector<PF_Pixel8> pixels;
  FramePixels frame;
};

TEST(FrameAsPng, RefusesAFrameWithoutPixels) {
  const Picture picture(1, 1);
  for (const auto& [width, height] : {std::pair{0, 1}, {1, 0}}) {
    EXPECT_THROW(FrameAsPng({picture.pixels.data(), 64, width, height}), JobFailure);
  }
}

TEST(Ground, ShowsThroughByWhatAlphaLeavesRoundedToTheNearest) {
  struct Case {
    Ground ground;
    int32_t x, y;
    double grey;
  };
  // The squares are 16 pixels wide, and the first is light.
  const Case cases[] = {{Ground::kBlack, 0, 0, 0.0},       {Ground::kChecker, 15, 15, 153.0},
                        {Ground::kChecker, 16, 15, 102.0}, {Ground::kChecker, 15, 16, 102.0},
                        {Ground::kChecker, 16, 31, 153.0}, {Ground::kChecker, 32, 0, 153.0}};
  Picture picture(33, 32);
  std::vector<PF_Pixel8> room;
  for (const Case& c : cases) {
    for (int alpha = 0; alpha < 256; ++alpha) {
      for (const int channel : {0, 1, 100, 254, 255}) {
        const auto byte = static_cast<A_u_char>(channel);
        picture.At(c.x, c.y) = {static_cast<A_u_char>(alpha), byte, 0, 255};
        const PF_Pixel8 shown = LayOver(c.ground, picture.frame, room).Row(c.y)[c.x];
        const auto mixed = [&](double value) {
          return std::floor(c.grey + (value - c.grey) * alpha / 255.0 + 0.5 + 1e-9);
        };
        ASSERT_EQ(shown.alpha, 255);
        ASSERT_EQ(shown.red, mixed(channel)) << alpha << ' ' << channel << ' ' << c.x;
        ASSERT_EQ(shown.green, mixed(0)) << alpha << ' ' << c.x;
        ASSERT_EQ(shown.blue, mixed(255)) << alpha << ' ' << c.x;
      }
    }
  }
  EXPECT_EQ(LayOver(Ground::kNone, picture.frame, room).first, picture.pixels.data());
}

TEST(FrameNames, PutTheNumberWhereThePatternSays) {
  struct Case {
    const char* pattern;
    int64_t number;
    const char* name;
  };
  const Case cases[] = {{"a/%05d.png", 12, "a/00012.png"},
                        {"%05d.png", -12, "-0012.png"},
                        {"%03d.png", 123456, "123456.png"},
                        {"%d.png", 0, "0.png"},
                        {"x%d-y.png", -2147483648, "x-2147483648-y.png"},
                        {"/100%/%s/d%01dd.png", 7, "/100%/%s/d7d.png"},
                        {"%020d.png", 1, "00000000000000000001.png"},
                        {"one.png", 9, "one.png"}};
  for (const Case& c : cases) EXPECT_EQ(FrameNames(c.pattern).NameOf(c.number), c.name);
  EXPECT_TRUE(FrameNames("a%d.png").HasNumber());
  EXPECT_FALSE(FrameNames("%d/a.png").HasNumber());
}

TEST(FrameNames, RefuseEveryOtherPattern) {
  for (const char* pattern :
       {"%s.png", "%.png", "50%.png", "%5d.png", "%-5d.png", "%00d.png", "%021d.png", "%0d.png",
        "%d%d.png", "%%d.png", "%d%%.png", "%05x.png", "%0 5d.png", "%*d.png", "%ld.png", "%n.png",
        "%0-1d.png", "%099999999999999999999d.png"}) {
    EXPECT_THROW(FrameNames{pattern}, UsageFailure) << pattern;
  }
}

}  // namespace
