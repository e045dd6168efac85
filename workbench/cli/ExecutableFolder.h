// Where the workbench itself lies.
#pragma once

#include <filesystem>

// The folder of the running program.
std::filesystem::path ExecutableFolder();

// The plug-in's file name on this system.
const char* PluginFileName();
