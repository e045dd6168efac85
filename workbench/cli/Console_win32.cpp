// A Windows console, whose arguments are UTF-16.
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Needs what windows.h declares.
#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

#include "workbench/cli/Console.h"

namespace {

struct LocalMemoryDeleter {
  void operator()(wchar_t** memory) const { LocalFree(static_cast<HLOCAL>(memory)); }
};

std::string Utf8From(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](char* out, int room) {
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), length, out, room, nullptr, nullptr);
  };
  std::string bytes(static_cast<size_t>(convert(nullptr, 0)), '\0');
  convert(bytes.data(), static_cast<int>(bytes.size()));
  return bytes;
}

}  // namespace

std::vector<std::string> ConsoleArguments(int argc, const char* const* argv) {
  // What main gets is in the system's code page, which can't say every name.
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalMemoryDeleter> wide(
      CommandLineToArgvW(GetCommandLineW(), &count));
  if (wide == nullptr) return {argv + std::min(argc, 1), argv + argc};
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8From(wide.get()[i]));
  return arguments;
}

void SetUpConsole() {
  SetConsoleOutputCP(CP_UTF8);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
}

bool IsErrorStreamATerminal() {
  HANDLE stream = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  if (GetConsoleMode(stream, &mode) == 0) return false;
  return SetConsoleMode(stream, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}
