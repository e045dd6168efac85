// Loads through the dynamic linker.
#include <dlfcn.h>

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
  // A bare name would be looked for in the system's library folders.
  const std::filesystem::path absolute = std::filesystem::absolute(path);
  void* loaded = dlopen(absolute.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) {
    throw JobFailure(path.string() + ": is not a library that loads here (" + dlerror() +
                     "). Name the plug-in's library with --plugin.");
  }
  return {loaded, [](void* handle) { dlclose(handle); }};
}

}  // namespace

PluginLibrary::PluginLibrary(const std::filesystem::path& path) : module(Load(path)) {
  entryPoint = reinterpret_cast<PF_EntryPoint>(dlsym(module.get(), kEntryPointName));
  if (entryPoint == nullptr) {
    throw JobFailure(path.string() + ": has no function " + kEntryPointName +
                     ", so it is not an effect plug-in. Name another library with --plugin.");
  }
}
