// Catches a stored font that isn't what its record says, glyphs that are missing or in the wrong
// place, and twins at the wrong scale.
#include "drawing/Fonts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <span>
#include <vector>

namespace {

const struct {
  const Font& font;
  int32_t nominalSize;
  int32_t rows;
  int32_t stride;
} kFonts[] = {
    {FontSmall(), 10, 10, 560},      {FontDefault(), 11, 12, 608}, {FontMenu(), 11, 12, 600},
    {FontBold(), 12, 12, 648},       {FontSymbols(), 10, 8, 740},  {FontSmall2x(), 19, 21, 984},
    {FontDefault2x(), 21, 23, 1076}, {FontBold2x(), 21, 24, 1156}, {FontSymbols2x(), 18, 15, 1292},
};

// Rows of the columns from first to end that aren't empty.
std::vector<int32_t> InkedRows(const Font& font, int32_t first, int32_t end) {
  std::vector<int32_t> rows;
  for (int32_t row = 0; row < font.Rows(); ++row) {
    bool ink = false;
    for (int32_t column = first; column < end; ++column) ink |= *font.Coverage(row, column) != 0;
    if (ink) rows.push_back(row);
  }
  return rows;
}

TEST(Fonts, RecordsAreWellFormedAndHaveInkWhereTheySay) {
  for (const auto& [font, nominalSize, rows, stride] : kFonts) {
    SCOPED_TRACE(stride);
    const FontRecord& record = font.Record();
    EXPECT_EQ(record.spacing, 0);
    EXPECT_EQ(record.nominalSize, nominalSize);
    EXPECT_EQ(record.rows, rows);
    EXPECT_EQ(record.stride, stride);
    EXPECT_EQ(record.columns[0], 0);
    EXPECT_EQ(record.zero, 0);
    for (const uint16_t word : record.reserved) EXPECT_EQ(word, 0);
    EXPECT_TRUE(InkedRows(font, record.columns[95], stride).empty());
    const bool symbols = &font == &FontSymbols() || &font == &FontSymbols2x();
    for (size_t i = 0; i < 95; ++i) {
      ASSERT_LT(record.columns[i], record.columns[i + 1]) << i;
      const auto inked = InkedRows(font, record.columns[i], record.columns[i + 1]);
      const size_t code = i + 32;
      ASSERT_EQ(!inked.empty(), symbols ? code == '4' || code == 'u' : code != ' ') << code;
      EXPECT_EQ(record.inkTops[i], inked.empty() ? 0 : inked.front()) << code;
      EXPECT_EQ(record.inkBottoms[i], inked.empty() ? 0 : inked.back()) << code;
    }
  }
}

// A diamond is the same upside down and on its side, which a check mark is not.
TEST(Fonts, SymbolsAreACheckMarkAndADiamond) {
  for (const Font* font : {&FontSymbols(), &FontSymbols2x()}) {
    const int32_t last = font->Rows() - 1;
    for (const int32_t code : {int32_t{'4'}, int32_t{'u'}}) {
      ASSERT_EQ(font->EndColumn(code) - font->FirstColumn(code), last + 1);
      int32_t unlike = 0;
      for (int32_t i = 0; i < (last + 1) * (last + 1); ++i) {
        const int32_t row = i / (last + 1);
        const int32_t column = i % (last + 1);
        const int32_t here = *font->Coverage(row, font->FirstColumn(code) + column);
        unlike += std::abs(here - *font->Coverage(column, font->FirstColumn(code) + row)) > 6;
        unlike +=
            std::abs(here - *font->Coverage(last - row, font->FirstColumn(code) + column)) > 6;
      }
      EXPECT_EQ(unlike == 0, code == 'u');
    }
  }
}

TEST(Fonts, TwinsStandInAboveAScaleOfOneAndAHalf) {
  const struct {
    const Font& font;
    const Font& twin;
    float scale;
    float ratio;
  } kCases[] = {
      {FontSmall(), FontSmall2x(), 2, 2},        {FontDefault(), FontDefault2x(), 2, 2},
      {FontMenu(), FontDefault2x(), 2, 2},       {FontBold(), FontBold2x(), 1.51F, 2},
      {FontSymbols(), FontSymbols2x(), 3, 1.8F}, {FontBold(), FontBold(), 1.5F, 1},
      {FontDefault2x(), FontDefault2x(), 2, 1},
  };
  for (const auto& c : kCases) {
    const FontTwin twin = TwinAtScale(c.font, c.scale);
    EXPECT_EQ(twin.font, &c.twin) << c.scale;
    EXPECT_EQ(twin.ratio, c.ratio) << c.scale;
  }
}

TEST(Fonts, TablesThatDontFitTheStripAreRefused) {
  const std::vector<uint8_t> strip(40);
  const auto isRead = [&strip](uint16_t early, uint16_t last, size_t bytes) {
    FontRecord record = FontSmall().Record();
    record.rows = 4;
    record.stride = 10;
    record.columns.fill(last);
    record.columns[0] = early;
    try {
      const Font font(record, std::span(strip).first(bytes));
      return font.Rows() == 4;
    } catch (const App::ExceptionInfo& failure) {
      EXPECT_EQ(failure.code, App::kWrongFormat);
      return false;
    }
  };
  EXPECT_TRUE(isRead(0, 10, 40));
  EXPECT_FALSE(isRead(0, 10, 39)) << "strip too short";
  EXPECT_FALSE(isRead(0, 11, 40)) << "a glyph ends beyond the row";
  EXPECT_FALSE(isRead(7, 6, 40)) << "a glyph begins behind its end";
}

}  // namespace
