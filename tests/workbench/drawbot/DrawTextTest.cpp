// Catches text that stands beside its place, is wider than it may be, or is no text at all.
#include <gtest/gtest.h>

#include "workbench/drawbot/PictureCanvas.h"
#include "workbench/drawbot/Utf16Text.h"

namespace {

// The columns of a picture of 100 x 30 that text has touched; right excluded.
struct Columns {
  int32_t left = 0;
  int32_t right = 0;
};

Columns ColumnsOf(const PlacedText& text) {
  const auto canvas = NewPictureCanvas({0, 0, 100, 30, 1}, {255, 0, 0, 0});
  DrawState state;
  state.clip = {0, 0, 100, 30};
  canvas->PlaceText(state, {1, 1, 1, 1}, text);
  const Picture picture = canvas->Copy();
  Columns columns{100, 0};
  for (int32_t i = 0; i < 3000; ++i) {
    if (picture.pixels[static_cast<size_t>(i)].red == 0) continue;
    EXPECT_LT(i / 100, 23) << "below the descenders of a baseline at 20";
    columns.left = std::min(columns.left, i % 100);
    columns.right = std::max(columns.right, i % 100 + 1);
  }
  return columns;
}

TEST(DrawText, EndsOrHasItsMiddleAtItsPlace) {
  const auto at = [](DRAWBOT_TextAlignment alignment) {
    return ColumnsOf({"Apply", 10.0F, {50, 20}, alignment});
  };
  const Columns left = at(kDRAWBOT_TextAlignment_Left);
  EXPECT_NEAR(left.left, 50, 1);
  EXPECT_NEAR(left.right, 50 + 28, 2) << "28.2 in this font";
  EXPECT_NEAR(at(kDRAWBOT_TextAlignment_Right).right, 50, 1);
  const Columns centre = at(kDRAWBOT_TextAlignment_Center);
  EXPECT_NEAR(centre.left + centre.right, 100, 2);
}

TEST(DrawText, KeepsToTheWidthThatItMayTake) {
  const std::string text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80-long path/to a file";
  for (const auto truncation : {kDRAWBOT_TextTruncation_End, kDRAWBOT_TextTruncation_EndEllipsis,
                                kDRAWBOT_TextTruncation_PathEllipsis}) {
    for (float width = 0.0F; width < 90.0F; width += 7.0F) {
      const Columns columns =
          ColumnsOf({text, 10.0F, {5, 20}, kDRAWBOT_TextAlignment_Left, truncation, width});
      EXPECT_LE(columns.right, 5 + width + 1) << truncation;
      if (width > 30.0F) {
        EXPECT_GT(columns.right, 5 + width - 14) << truncation << ": more fits";
      }
    }
  }
}

TEST(Utf8From, TurnsEveryCodePointAndMarksHalves) {
  EXPECT_EQ(Utf8From(u"A\u00E4\u20AC\U0001F600"), "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
  const char16_t halves[] = {0xDC00, 'x', 0xD83D, 'y', 0xD83D};
  EXPECT_EQ(Utf8From({halves, 5}), "\xEF\xBF\xBDx\xEF\xBF\xBDy\xEF\xBF\xBD");
}

}  // namespace
