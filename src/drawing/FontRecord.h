// A bitmap font as it is stored: one strip of coverage with all glyphs side by side.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "engine/ExceptionInfo.h"

inline constexpr int32_t kFirstGlyphCode = 32;
inline constexpr int32_t kLastGlyphCode = 126;

// What stands before the strip: words of 16 bits, the low byte first. Entry i of a table is that of
// code 32 + i.
//
//     columns[0]   columns[1]      columns[2]     columns[95]   stride
//     |   space    |      "!"      |     ...      |   unused    |
//     row 0        row after row, one byte a pixel, 0 empty, 255 full
struct FontRecord {
  uint16_t spacing = 0;      // pixels between glyphs
  uint16_t nominalSize = 0;  // informative
  uint16_t rows = 0;         // height of the strip and of a line
  uint16_t stride = 0;       // bytes from one row of the strip to the next
  std::array<uint16_t, 96> columns = {};
  uint16_t zero = 0;
  std::array<uint16_t, 95> reserved = {};
  std::array<uint16_t, 96> inkTops = {};
  std::array<uint16_t, 96> inkBottoms = {};
};

static_assert(offsetof(FontRecord, columns) == std::size_t{2} * 4);
static_assert(offsetof(FontRecord, zero) == std::size_t{2} * 100);
static_assert(offsetof(FontRecord, inkTops) == std::size_t{2} * 196);
static_assert(offsetof(FontRecord, inkBottoms) == std::size_t{2} * 292);
static_assert(sizeof(FontRecord) == 776);

// A record with its strip, as they lie one behind the other.
template <size_t Rows, size_t Stride>
struct StoredFont {
  FontRecord record;
  std::array<uint8_t, (Rows * Stride)> strip = {};
};

static_assert(sizeof(StoredFont<8, 740>) == sizeof(FontRecord) + std::size_t{8} * 740);

// Reads a stored font, borrowed for as long as this lives. Every place in it is inside the strip.
class Font {
 public:
  // Throws App::ExceptionInfo kWrongFormat where the strip isn't rows x stride bytes, or a glyph
  // begins before its neighbour or ends beyond the row. A constant font is checked by the compiler.
  constexpr Font(const FontRecord& storedRecord, std::span<const uint8_t> storedStrip)
      : record(&storedRecord), strip(storedStrip.data()) {
    bool fits = storedStrip.size() == size_t{record->rows} * record->stride;
    for (size_t i = 1; i < record->columns.size(); ++i) {
      fits = fits && record->columns[i - 1] <= record->columns[i];
    }
    if (!fits || record->columns.back() > record->stride) {
      throw App::ExceptionInfo{App::kWrongFormat, "a font's tables don't fit its strip"};
    }
  }

  template <size_t Rows, size_t Stride>
  constexpr explicit Font(const StoredFont<Rows, Stride>& stored)
      : Font(stored.record, stored.strip) {}

  const FontRecord& Record() const { return *record; }
  int32_t Rows() const { return record->rows; }

  static bool HasGlyph(int32_t code) { return code >= kFirstGlyphCode && code <= kLastGlyphCode; }

  // Columns from FirstColumn up to, not including, EndColumn are the glyph. For codes that have
  // one.
  int32_t FirstColumn(int32_t code) const { return Column(code - kFirstGlyphCode); }
  int32_t EndColumn(int32_t code) const { return Column(code - kFirstGlyphCode + 1); }

  // Coverage from a place inside the strip onward, to the end of its row.
  const uint8_t* Coverage(int32_t row, int32_t column) const {
    return strip + static_cast<ptrdiff_t>(row) * record->stride + column;
  }

 private:
  int32_t Column(int32_t entry) const { return record->columns[static_cast<size_t>(entry)]; }

  const FontRecord* record = nullptr;
  const uint8_t* strip = nullptr;
};
