// The encoding of the process is that of its C locale.
#include <cstdlib>
#include <cuchar>
#include <cwchar>

#include "platform/MultiByteText.h"

void MultiByteToUtf16(const char* text, uint16_t* utf16, size_t capacity) {
  constexpr auto kSecondUnit = static_cast<size_t>(-3);
  constexpr auto kUnreadable = static_cast<size_t>(-2);  // and -1: cut or not of the encoding
  std::mbstate_t state{};
  size_t length = 0;
  while (length + 1 < capacity) {
    char16_t unit = 0;
    const size_t read = std::mbrtoc16(&unit, text, MB_CUR_MAX, &state);
    if (read == 0) break;
    if (read == kSecondUnit) {
      utf16[length++] = unit;
      continue;
    }
    if (read >= kUnreadable) {
      state = {};
      unit = u'?';
      ++text;
    } else {
      text += read;
    }
    utf16[length++] = unit;
  }
  utf16[length] = 0;
}
