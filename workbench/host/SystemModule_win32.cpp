// Loads through the loader of Windows.
#include <windows.h>

#include "workbench/host/SystemModule.h"

SystemModule LoadSystemModule(const std::filesystem::path& path) {
  // What the library itself asks for is looked up beside it, as a host does.
  HMODULE loaded = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (loaded == nullptr) return {nullptr, "error " + std::to_string(GetLastError())};
  return {{loaded, [](void* handle) { FreeLibrary(static_cast<HMODULE>(handle)); }}, {}};
}

void* FindFunction(const SystemModule& module, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module.handle.get()), name));
}
