// Breaks a text into lines.
#include "toolkit/TextWrap.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "toolkit/TextPen.h"

namespace {

struct Break {
  size_t end;   // of the line
  size_t next;  // where the next one begins
};

// Where a line that begins at `begin` and would run to `end` has to break.
Break FindBreak(std::string_view text, const Font& font, size_t begin, size_t end, int32_t width) {
  TextPen pen(font);
  size_t fits = begin;
  while (fits < end && pen.Pass(text[fits]).right <= width) ++fits;
  if (fits == end) return {end, end};
  // A blank may hang over the edge.
  const size_t blank = text.substr(begin, fits + 1 - begin).rfind(' ');
  if (blank != std::string_view::npos && blank > 0) return {begin + blank, begin + blank + 1};
  const size_t forced = std::max(fits, begin + 1);
  return {forced, forced};
}

}  // namespace

std::vector<std::string> WrapText(const std::string& text, const Font& font, int32_t width,
                                  int32_t mostLines) {
  const std::string_view shown = std::string_view(text).substr(0, text.find('\0'));
  std::vector<std::string> lines;
  size_t begin = 0;
  size_t newline = std::min(shown.find('\n'), shown.size());
  while (begin < shown.size() && static_cast<int64_t>(lines.size()) < mostLines) {
    if (newline < begin) newline = std::min(shown.find('\n', begin), shown.size());
    const Break found = FindBreak(shown, font, begin, newline, width);
    lines.emplace_back(shown.substr(begin, found.end - begin));
    begin = found.next + (found.next == newline ? 1 : 0);
  }
  return lines;
}
