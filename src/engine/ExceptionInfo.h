// What the drawing and the control tree throw, by value.
#pragma once

#include <cstdint>

namespace App {

inline constexpr int32_t kWrongFormat = -1;
inline constexpr int32_t kLibpngFailed = -2;
inline constexpr int32_t kOutOfMemory = -108;  // or a null where an object was needed

struct ExceptionInfo {
  int32_t code = 0;
  const char* message = nullptr;  // constant text, may be null
};

}  // namespace App
