// Tells apart the reasons why a file isn't a plug-in.
#include "workbench/host/PluginLibrary.h"

#include <string>
#include <system_error>

#include "workbench/Failure.h"

namespace {

constexpr const char* kEntryPointName = "EntryPointFunc";

SystemModule Load(const std::filesystem::path& path) {
  std::error_code code;
  if (!std::filesystem::exists(path, code)) {
    throw JobFailure(
        path.string() +
        ": there is no such plug-in library. Build it, or name another with --plugin.");
  }
  // A bare name would be looked for in the system's library folders.
  std::filesystem::path absolute = std::filesystem::absolute(path);
  SystemModule module = LoadSystemModule(absolute.make_preferred());
  if (module.handle == nullptr) {
    throw JobFailure(path.string() + ": is not a library that loads here (" + module.refusal +
                     "). Name the plug-in's library with --plugin.");
  }
  return module;
}

}  // namespace

PluginLibrary::PluginLibrary(const std::filesystem::path& path) : module(Load(path)) {
  entryPoint = reinterpret_cast<PF_EntryPoint>(FindFunction(module, kEntryPointName));
  if (entryPoint == nullptr) {
    throw JobFailure(path.string() + ": has no function " + kEntryPointName +
                     ", so it is not an effect plug-in. Name another library with --plugin.");
  }
}
