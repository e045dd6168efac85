// Names of files in texts, which are UTF-8 on every system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// A path made of a plain string would take the bytes for the system's code page, where there is
// one.
inline std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}
