// Loads through the dynamic linker.
#include <dlfcn.h>

#include "workbench/host/SystemModule.h"

SystemModule LoadSystemModule(const std::filesystem::path& path) {
  void* loaded = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) return {nullptr, dlerror()};
  return {{loaded, [](void* handle) { dlclose(handle); }}, {}};
}

void* FindFunction(const SystemModule& module, const char* name) {
  return dlsym(module.handle.get(), name);
}
