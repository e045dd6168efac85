// A library as the loader of the system sees it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

struct SystemModule {
  std::shared_ptr<void> handle;  // unloads it at the end; null where it can't be loaded
  std::string refusal;           // then: the loader's reason
};

// path   absolute, with the system's own separators
SystemModule LoadSystemModule(const std::filesystem::path& path);

// The address of an exported function; null where there is none of that name.
void* FindFunction(const SystemModule& module, const char* name);
