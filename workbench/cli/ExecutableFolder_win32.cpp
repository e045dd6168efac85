// The program's place as the loader tells it.
#include <windows.h>

#include <string>

#include "workbench/cli/ExecutableFolder.h"

std::filesystem::path ExecutableFolder() {
  // The longest path that the system knows, with its end.
  constexpr DWORD kRoom = 32768;
  std::wstring path(kRoom, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), kRoom));
  return std::filesystem::path(path).parent_path();
}

const char* PluginFileName() {
  return "Delvior.aex";
}
