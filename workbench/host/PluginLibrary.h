// The plug-in's library, loaded from a file, or linked into this program.
#pragma once

#include <filesystem>

#include "AE_Effect.h"
#include "workbench/host/SystemModule.h"

class PluginLibrary {
 public:
  // Loads `path` and finds its entry point. Throws JobFailure where there is no such file, where it
  // isn't a library for this system, or where it has no entry point.
  explicit PluginLibrary(const std::filesystem::path& path);

  // A plug-in that is part of this program.
  explicit PluginLibrary(PF_EntryPoint linked) : entryPoint(linked) {}

  PF_EntryPoint EntryPoint() const { return entryPoint; }

 private:
  SystemModule module;
  PF_EntryPoint entryPoint = nullptr;
};
