// Text in the encoding of the process as UTF-16, which the host draws.
#pragma once

#include <cstddef>
#include <cstdint>

// Writes `text` as UTF-16 with a zero behind it; what doesn't fit is cut, what can't be read
// becomes a question mark.
//
// capacity   of utf16, in units, at least 1
void MultiByteToUtf16(const char* text, uint16_t* utf16, size_t capacity);
