// Catches text in the wrong place or colour, kerning that misjudges two edges, and text, places or
// opacities from anywhere that lead outside the picture.
#include "drawing/Labeler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include "engine/ExceptionInfo.h"
#include "tests/drawing/GuardedPicture.h"

namespace {

constexpr int32_t kRows = 6;
constexpr int32_t kStride = 240;
using SmallFont = StoredFont<kRows, kStride>;

// Glyphs of 0 to 7 columns, so many that the last ones have no room; in some fonts the letters
// begin with the strip. Faint ink makes pairs of columns that are solid and yet hardly touch.
std::unique_ptr<SmallFont> RandomFont(uint32_t seed, uint16_t spacing) {
  auto stored = std::make_unique<SmallFont>();
  std::minstd_rand random(seed + 7);
  stored->record.spacing = spacing;
  stored->record.rows = kRows;
  stored->record.stride = kStride;
  uint32_t column = 0;
  for (size_t i = 0; i < stored->record.columns.size(); ++i) {
    stored->record.columns[i] = static_cast<uint16_t>(std::min<uint32_t>(column, kStride));
    if (seed % 4 < 2 || i >= 'A' - 32) column += static_cast<uint32_t>(random() / 64 % 8);
  }
  constexpr uint8_t kInk[] = {0, 0, 0, 1, 2, 30, 150, 255};
  for (uint8_t& byte : stored->strip) byte = kInk[random() / 64 % (seed % 2 == 0 ? 5 : 8)];
  return stored;
}

// The coverage that two letters share when they are slid n columns together.
int64_t PlainContact(const Font& font, int32_t left, int32_t right, int32_t n) {
  const int32_t stride = font.Record().stride;
  int64_t sum = 0;
  int32_t solidPairs = 0;
  for (int32_t a = font.EndColumn(left) - n; a < font.EndColumn(left); ++a) {
    const int32_t b = font.FirstColumn(right) + a - (font.EndColumn(left) - n);
    if (a < 0 || b >= stride) continue;
    int32_t inked[2] = {};
    for (int32_t row = 0; row < font.Rows(); ++row) {
      const int32_t product = *font.Coverage(row, a) * *font.Coverage(row, b);
      int32_t root = 0;
      while ((root + 1) * (root + 1) <= product) ++root;
      sum += root;
      inked[0] += *font.Coverage(row, a) > 0;
      inked[1] += *font.Coverage(row, b) > 0;
    }
    solidPairs += inked[0] > 1 && inked[1] > 1;
  }
  return solidPairs > 2 ? 255 : sum;
}

int32_t PlainKerning(const Font& font, int32_t left, int32_t right, int32_t threshold,
                     int32_t furthest) {
  const int32_t spacing = font.Record().spacing;
  if (left > 127 || right > 127 || std::isalpha(left) == 0 || std::isalpha(right) == 0) {
    return spacing;
  }
  const int32_t last = std::max(furthest, 1);
  int32_t together = last + 1;
  for (int32_t n = last; n >= 1; --n) {
    if (PlainContact(font, left, right, n) >= threshold) together = n - 1;
  }
  const std::string wide = "TY";
  const bool halved = wide.find(static_cast<char>(left)) != std::string::npos ||
                      wide.find(static_cast<char>(right)) != std::string::npos;
  return spacing - (halved && together > 1 ? together / 2 : together);
}

class LabelerTest : public testing::Test {
 protected:
  ~LabelerTest() override { SetScreenScale(1.0F); }
  Labeler labeler;
};

TEST_F(LabelerTest, KerningIsThatOfAPlainSearch) {
  constexpr std::pair<int32_t, int32_t> kSettings[] = {
      {128, 3}, {200, 5}, {256, 4}, {1, 3}, {128, -3}};
  int64_t kinds[8] = {};
  for (uint32_t seed = 0; seed < 8; ++seed) {
    const auto stored = RandomFont(seed, static_cast<uint16_t>(seed % 3));
    const Font font(*stored);
    for (const auto& [threshold, limit] : kSettings) {
      labeler.SetFont(&font, threshold, limit);
      for (int32_t left = 1; left < 256; left += left < 32 || left > 126 ? 30 : 1) {
        for (int32_t right = 30; right < 130; ++right) {
          const int32_t kerning = labeler.GetKerning(left, right);
          ASSERT_EQ(kerning, PlainKerning(font, left, right, threshold, limit + 1))
              << seed << " " << threshold << " " << left << " " << right;
          ++kinds[font.Record().spacing - kerning];
        }
      }
    }
  }
  for (const int64_t count : kinds) EXPECT_GT(count, 0);
}

TEST_F(LabelerTest, TwinsHaveAKerningOfTheirOwn) {
  SetScreenScale(2.0F);
  labeler.SetFont(&FontMenu(), 1000000, 90);
  for (int32_t pair = 0; pair < 58 * 58; ++pair) {
    const int32_t left = 'A' + pair / 58;
    const int32_t right = 'A' + pair % 58;
    ASSERT_EQ(labeler.GetKerning(left, right), PlainKerning(FontDefault2x(), left, right, 64, 2));
  }
}

// What the stored fonts are made for.
TEST_F(LabelerTest, StemsStayApartAndOpenPairsCloseUp) {
  for (const float scale : {1.0F, 2.0F}) {
    SetScreenScale(scale);
    for (const Font* font : {&FontSmall(), &FontDefault(), &FontMenu(), &FontBold()}) {
      labeler.SetFont(font);
      for (const char* pair :
           {"ll=", "nn=", "oo=", "HH=", "rn=", "AV<", "VA<", "To<", "Ty<", "LT<", "PA<"}) {
        EXPECT_EQ(labeler.GetKerning(pair[0], pair[1]) < 0, pair[2] == '<') << pair << scale;
      }
    }
  }
}

TEST_F(LabelerTest, MeasuresInLogicalPixelsAndNoGlyphAsNothing) {
  const std::string text = "AVA 4.2 Type";
  SetScreenScale(2.0F);
  for (const Font* font : {&FontBold(), &FontSymbols()}) {
    labeler.SetFont(font);
    const FontTwin twin = TwinAtScale(*font, 2.0F);
    Labeler plain;
    plain.SetFont(twin.font, 64, 1, false);
    const double ratio = twin.ratio;
    for (size_t end = 0; end <= text.size(); ++end) {
      const std::string part = text.substr(0, end);
      const int32_t physical = plain.MeasureString(part.c_str(), 3);
      EXPECT_NEAR(labeler.MeasureString(part.c_str(), 3) * ratio, physical, ratio / 2) << part;
    }
  }
  EXPECT_EQ(labeler.MeasureString(nullptr, 9), 0);
  const std::pair<const Font*, int32_t> kHeights[] = {
      {&FontSmall(), 11}, {&FontDefault(), 12}, {&FontBold(), 12}, {&FontSymbols(), 8}};
  for (const auto& [font, lineHeight] : kHeights) {
    labeler.SetFont(font);
    EXPECT_EQ(labeler.GetLineHeight(), lineHeight);
  }
  for (const int32_t code : {INT32_MIN, -65, 0, 31, 127, 128, 255, INT32_MAX}) {
    EXPECT_EQ(labeler.GetCharWidth(code), 0) << code;
    EXPECT_EQ(labeler.GetKerning(code, 'V'), 0) << code;
  }
}

// Draws text glyph by glyph, pixel by pixel, at places worked out from widths of shorter texts.
void PlainDraw(GuardedPicture& picture, const Labeler& labeler, const Font& font,
               const std::string& text, int64_t x, int64_t y, const TextStyle& style,
               bool fromLast) {
  const Rect clip = style.clip == nullptr ? picture.Bounds() : picture.ToPhysical(*style.clip);
  const int32_t opacity = std::clamp(style.opacity, 0, 256);
  for (size_t count = 0; count < text.size(); ++count) {
    const size_t i = fromLast ? text.size() - 1 - count : count;
    const auto code = static_cast<unsigned char>(text[i]);
    if (!Font::HasGlyph(code)) continue;
    const int32_t width = font.EndColumn(code) - font.FirstColumn(code);
    const std::string part = text.substr(0, i + 1);
    const int64_t left = x + labeler.MeasureString(part.c_str(), style.tracking) - width;
    for (int32_t k = 0; k < width * font.Rows(); ++k) {
      const int64_t px = left + k % width;
      const int64_t py = y + k / width;
      if (!picture.Holds(px, py) || !Inside(clip, px, py)) continue;
      const int32_t coverage = *font.Coverage(k / width, font.FirstColumn(code) + k % width);
      const double alpha = std::floor(coverage * opacity / 256.0);
      ColorBGRA& pixel = picture.At(px, py);
      const uint8_t kept = pixel.alpha;
      if (!style.blend) pixel = ColorBGRA(0xFF0050C8);
      pixel = PlainComposite(pixel, style.color, alpha);
      if (!style.blend) pixel.alpha = kept;
    }
  }
}

TEST_F(LabelerTest, DrawsAsPlainArithmeticDoesAndNothingElse) {
  RandomPlaces places(5);
  std::string everyByte;
  for (int byte = 1; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  for (uint32_t round = 0; round < 1500; ++round) {
    const auto stored = RandomFont(round * 2 + 1, 1);
    const Font font(*stored);
    labeler.SetFont(&font);
    GuardedPicture picture(places.Number(1, 30), places.Number(1, 12), round);
    picture.SetScale(round % 3 == 0 ? 2.0F : 1.0F);
    picture.SetScaleAware(round % 6 != 0);
    GuardedPicture expected(picture);
    const Rect clip = places.Place();
    TextStyle style;
    style.color = ColorBGRA(0x12F08030);
    style.background = ColorBGRA(0xFF0050C8);
    style.blend = round % 2 == 0;
    style.clip = round % 5 < 2 ? &clip : nullptr;
    style.opacity = places.Opacity();
    style.tracking = places.Number(-2, 2);
    const std::string text = round % 7 == 0
                                 ? everyByte
                                 : everyByte.substr(static_cast<size_t>(places.Number(30, 120)), 4);
    const bool fromRight = round % 4 == 3;
    const int32_t x = places.Edge();
    const int32_t y = places.Edge();
    labeler.DrawString(picture, text.c_str(), x, y,
                       fromRight ? TextAlignment::kRight : TextAlignment::kLeft, style);
    const int64_t width = fromRight ? labeler.MeasureString(text.c_str(), style.tracking) : 0;
    PlainDraw(expected, labeler, font, text, picture.ToPhysical(x) - width, picture.ToPhysical(y),
              style, fromRight);
    ASSERT_EQ(picture.bytes, expected.bytes) << "round " << round;
  }
}

TEST_F(LabelerTest, TextStandsInARectangle) {
  labeler.SetFont(&FontDefault());
  const int32_t width = labeler.MeasureString("1/4", 0);
  const struct {
    const char* what = nullptr;
    Rect rect;
    TextAlignment alignment = TextAlignment::kLeft;
    int32_t x = 0;
    int32_t y = 0;
  } kCases[] = {
      {"a line high", {5, 4, 60, 16}, TextAlignment::kLeft, 5, 5},
      {"18 high, centred", {0, 0, width + 9, 18}, TextAlignment::kCentre, 4, 4},
      {"5 high", {3, 6, 60, 11}, TextAlignment::kLeft, 3, 3},
      {"narrower than the text", {20, 2, 17 + width, 14}, TextAlignment::kCentre, 19, 3},
      {"ending at the right", {0, 2, 57, 14}, TextAlignment::kRight, 57 - width, 3},
  };
  for (const auto& c : kCases) {
    GuardedPicture drawn(64, 24, 1);
    GuardedPicture expected(drawn);
    labeler.DrawStringInRect(drawn, "1/4", c.rect, c.alignment, {});
    labeler.DrawString(expected, "1/4", c.x, c.y, TextAlignment::kLeft, {});
    EXPECT_EQ(drawn.bytes, expected.bytes) << c.what;
  }
  GuardedPicture picture(8, 8, 2);
  const GuardedPicture untouched(picture);
  TextStyle leaping;
  leaping.tracking = INT32_MAX;
  for (const auto& c : kCases) {
    const Rect widest = {INT32_MIN, INT32_MAX, INT32_MAX, INT32_MAX};
    labeler.DrawStringInRect(picture, "far away", widest, c.alignment, leaping);
    labeler.DrawStringInRect(picture, nullptr, picture.Bounds(), c.alignment, {});
  }
  EXPECT_EQ(picture.bytes, untouched.bytes);
  GuardedPicture first(picture);
  labeler.DrawString(first, "1", -4, 0, TextAlignment::kLeft, leaping);
  labeler.DrawString(picture, "1111", -4, 0, TextAlignment::kLeft, leaping);
  EXPECT_EQ(picture.bytes, first.bytes);
}

TEST_F(LabelerTest, NothingIsDoneWithoutAFont) {
  const std::function<void()> kOperations[] = {[&] { labeler.GetKerning('A', 'V'); },
                                               [&] { labeler.GetLineHeight(); },
                                               [&] { labeler.MeasureString("A", 0); }};
  for (const auto& operation : kOperations) {
    int32_t code = 0;
    try {
      operation();
    } catch (const App::ExceptionInfo& failure) {
      code = failure.code;
    }
    EXPECT_EQ(code, App::kOutOfMemory);
  }
}

}  // namespace
