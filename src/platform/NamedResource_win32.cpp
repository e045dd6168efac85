// Resources as the module's own file has them. Their lookup by name knows no case.
#include "platform/NamedResource.h"

#include <windows.h>

NamedResource FindNamedResource(ModuleHandle module, const char* name, const char* type) {
  const auto instance = static_cast<HMODULE>(module);
  HRSRC const found = FindResourceA(instance, name, type);
  if (found == nullptr) return {};
  HGLOBAL const loaded = LoadResource(instance, found);
  if (loaded == nullptr) return {};
  const void* bytes = LockResource(loaded);
  if (bytes == nullptr) return {};
  return {static_cast<const uint8_t*>(bytes), SizeofResource(instance, found)};
}
