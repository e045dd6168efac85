// From UTF-16 to UTF-8.
#include "workbench/drawbot/Utf16Text.h"

#include <cstdint>

namespace {

bool IsHigh(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLow(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

// The code point at the front of `text`, which is not empty, and is taken off.
uint32_t TakeCodePoint(std::u16string_view& text) {
  const char16_t first = text.front();
  text.remove_prefix(1);
  if (IsHigh(first) && !text.empty() && IsLow(text.front())) {
    const uint32_t low = text.front();
    text.remove_prefix(1);
    return 0x10000U + ((uint32_t{first} - 0xD800U) << 10) + (low - 0xDC00U);
  }
  return IsHigh(first) || IsLow(first) ? 0xFFFDU : first;
}

void Append(std::string& bytes, uint32_t code) {
  const auto put = [&bytes](uint32_t byte) { bytes += static_cast<char>(byte); };
  const auto tail = [&](uint32_t shift) { put(0x80U | (code >> shift & 0x3FU)); };
  if (code < 0x80U) {
    put(code);
  } else if (code < 0x800U) {
    put(0xC0U | code >> 6);
    tail(0);
  } else if (code < 0x10000U) {
    put(0xE0U | code >> 12);
    tail(6);
    tail(0);
  } else {
    put(0xF0U | code >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

std::string Utf8From(std::u16string_view text) {
  std::string bytes;
  while (!text.empty()) Append(bytes, TakeCodePoint(text));
  return bytes;
}
