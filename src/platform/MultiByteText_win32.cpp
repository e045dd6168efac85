// The encoding of the process is the system's code page.
#include "platform/MultiByteText.h"

#include <windows.h>

#include <algorithm>
#include <vector>

void MultiByteToUtf16(const char* text, uint16_t* utf16, size_t capacity) {
  utf16[0] = 0;
  const int needed = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
  if (needed < 1) return;
  // Into memory of its own: what the call leaves behind where the text doesn't fit is open.
  std::vector<wchar_t> whole(static_cast<size_t>(needed));
  const int converted = MultiByteToWideChar(CP_ACP, 0, text, -1, whole.data(), needed);
  if (converted < 1) return;
  const size_t length = std::min(static_cast<size_t>(converted), capacity) - 1;
  constexpr wchar_t kUnreadable = 0xFFFD;  // how a code page of Unicode marks it
  std::transform(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length), utf16,
                 [](wchar_t unit) { return unit == kUnreadable ? uint16_t{'?'} : uint16_t{unit}; });
  utf16[length] = 0;
}
