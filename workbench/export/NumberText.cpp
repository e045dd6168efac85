// Numbers as text, by the conversions that know no locale.
#include "workbench/export/NumberText.h"

#include <array>
#include <charconv>

namespace {

// The longest text is the smallest number without an exponent: a sign, "0.", 323 zeros, 17 digits.
using Buffer = std::array<char, 400>;

}  // namespace

std::string ShortestText(double value) {
  Buffer buffer{};
  const std::to_chars_result end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  return {buffer.data(), end.ptr};
}

std::string PreciseText(double value) {
  Buffer buffer{};
  const std::to_chars_result end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                                 value, std::chars_format::general, 17);
  return {buffer.data(), end.ptr};
}
