// Catches a stored font that isn't what its record says, glyphs that are missing or in the wrong
// place, and twins at the wrong scale.
#include "drawing/Fonts.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

namespace {

struct FontCase {
  const char* name;
  const Font& font;
  int32_t nominalSize;
  int32_t rows;
  int32_t stride;
};

const FontCase kFonts[] = {
    {"FontSmall", FontSmall(), 10, 10, 560},
    {"FontDefault", FontDefault(), 11, 12, 608},
    {"FontMenu", FontMenu(), 11, 12, 600},
    {"FontBold", FontBold(), 12, 12, 648},
    {"FontSymbols", FontSymbols(), 10, 8, 740},
    {"FontSmall2x", FontSmall2x(), 19, 21, 984},
    {"FontDefault2x", FontDefault2x(), 21, 23, 1076},
    {"FontBold2x", FontBold2x(), 21, 24, 1156},
    {"FontSymbols2x", FontSymbols2x(), 18, 15, 1292},
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

TEST(Fonts, RecordsAreWellFormed) {
  for (const FontCase& c : kFonts) {
    SCOPED_TRACE(c.name);
    const FontRecord& record = c.font.Record();
    EXPECT_EQ(record.spacing, 0);
    EXPECT_EQ(record.nominalSize, c.nominalSize);
    EXPECT_EQ(record.rows, c.rows);
    EXPECT_EQ(record.stride, c.stride);
    EXPECT_EQ(record.columns[0], 0);
    EXPECT_EQ(record.zero, 0);
    for (const uint16_t word : record.reserved) EXPECT_EQ(word, 0);
    EXPECT_TRUE(InkedRows(c.font, record.columns[95], record.stride).empty());
    for (int32_t code = kFirstGlyphCode; code <= kLastGlyphCode; ++code) {
      EXPECT_LT(c.font.FirstColumn(code), c.font.EndColumn(code)) << code;
    }
  }
}

TEST(Fonts, EveryGlyphHasInkWhereItsTablesSay) {
  for (const FontCase& c : kFonts) {
    const bool symbols = &c.font == &FontSymbols() || &c.font == &FontSymbols2x();
    for (int32_t code = kFirstGlyphCode; code <= kLastGlyphCode; ++code) {
      SCOPED_TRACE(std::string(c.name) + " " + static_cast<char>(code));
      const auto rows = InkedRows(c.font, c.font.FirstColumn(code), c.font.EndColumn(code));
      const bool expected = symbols ? code == '4' || code == 'u' : code != ' ';
      ASSERT_EQ(!rows.empty(), expected);
      const auto entry = static_cast<size_t>(code - kFirstGlyphCode);
      EXPECT_EQ(c.font.Record().inkTops[entry], expected ? rows.front() : 0);
      EXPECT_EQ(c.font.Record().inkBottoms[entry], expected ? rows.back() : 0);
    }
  }
}

// A check mark's long arm ends at the top right and its foot stands to the left of that; a diamond
// is the same from all four sides.
TEST(Fonts, SymbolsAreACheckMarkAndADiamond) {
  for (const Font* font : {&FontSymbols(), &FontSymbols2x()}) {
    const auto heaviest = [font](int32_t row) {
      int32_t best = font->FirstColumn('4');
      for (int32_t column = best; column < font->EndColumn('4'); ++column) {
        if (*font->Coverage(row, column) > *font->Coverage(row, best)) best = column;
      }
      return best - font->FirstColumn('4');
    };
    const auto rows = InkedRows(*font, font->FirstColumn('4'), font->EndColumn('4'));
    EXPECT_GT(heaviest(rows.front() + 1), heaviest(rows.back() - 1) + font->Rows() / 4);
    const int32_t last = font->Rows() - 1;
    ASSERT_EQ(font->EndColumn('u') - font->FirstColumn('u'), last + 1);
    for (int32_t i = 0; i < (last + 1) * (last + 1); ++i) {
      const auto at = [&](int32_t row, int32_t column) {
        return int{*font->Coverage(row, font->FirstColumn('u') + column)};
      };
      EXPECT_NEAR(at(i / (last + 1), i % (last + 1)), at(i % (last + 1), i / (last + 1)), 6);
      EXPECT_NEAR(at(i / (last + 1), i % (last + 1)), at(last - i / (last + 1), i % (last + 1)), 6);
    }
  }
}

TEST(Fonts, TwinsStandInAboveAScaleOfOneAndAHalf) {
  const struct {
    const Font& font;
    float scale;
    const Font& twin;
    float ratio;
  } kCases[] = {
      {FontSmall(), 2, FontSmall2x(), 2},        {FontDefault(), 2, FontDefault2x(), 2},
      {FontMenu(), 2, FontDefault2x(), 2},       {FontBold(), 1.51F, FontBold2x(), 2},
      {FontSymbols(), 3, FontSymbols2x(), 1.8F}, {FontBold(), 1.5F, FontBold(), 1},
      {FontDefault2x(), 2, FontDefault2x(), 1},
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
    FontRecord record{.spacing = 0,
                      .nominalSize = 4,
                      .rows = 4,
                      .stride = 10,
                      .columns = {},
                      .zero = 0,
                      .reserved = {},
                      .inkTops = {},
                      .inkBottoms = {}};
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
