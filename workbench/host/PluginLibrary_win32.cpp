// Loads through the system's loader.
#include <windows.h>

#include <string>
#include <system_error>

#include "workbench/Failure.h"
#include "workbench/host/PluginLibrary.h"

namespace {

constexpr const char* kEntryPointName = "EntryPointFunc";

std::shared_ptr<void> Load(const std::filesystem::path& path) {
  std::error_code code;
  if (!std::filesystem::exists(path, code)) {
    throw JobFailure(
        path.string() +
        ": there is no such plug-in library. Build it, or name another with --plugin.");
  }
  // What the library itself asks for is looked up beside it, as a host does.
  std::filesystem::path absolute = std::filesystem::absolute(path);
  absolute.make_preferred();
  HMODULE loaded = LoadLibraryExW(absolute.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (loaded == nullptr) {
    throw JobFailure(path.string() + ": is not a library that loads here (error " +
                     std::to_string(GetLastError()) +
                     "). Name the plug-in's library with --plugin.");
  }
  return {loaded, [](void* handle) { FreeLibrary(static_cast<HMODULE>(handle)); }};
}

}  // namespace

PluginLibrary::PluginLibrary(const std::filesystem::path& path) : module(Load(path)) {
  FARPROC found = GetProcAddress(static_cast<HMODULE>(module.get()), kEntryPointName);
  if (found == nullptr) {
    throw JobFailure(path.string() + ": has no function " + kEntryPointName +
                     ", so it is not an effect plug-in. Name another library with --plugin.");
  }
  // A function's address of any kind goes through one without a type.
  entryPoint = reinterpret_cast<PF_EntryPoint>(reinterpret_cast<void*>(found));
}
