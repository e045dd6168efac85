// The program's place as the process file system tells it.
#include "workbench/cli/ExecutableFolder.h"

std::filesystem::path ExecutableFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

const char* PluginFileName() {
  return "Delvior.so";
}
