// A saved project: the effect's parameters, its keyframes and its record.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "workbench/host/HostSession.h"

struct ProjectFile {
  std::map<std::string, std::string> values;               // by path, as ParameterText writes them
  std::map<std::string, std::vector<Keyframe>> keyframes;  // by path
  std::optional<std::vector<uint8_t>> record;
};

// Reads a project, or nothing where there is no such file. Throws JobFailure where the file is no
// project.
std::optional<ProjectFile> ReadProjectFile(const std::filesystem::path& path);

// Lays the project's values and keyframes into the instance and tells the plug-in. Throws
// JobFailure where a parameter is unknown or refuses its value.
void RestoreParameters(const ProjectFile& project, const std::filesystem::path& path,
                       HostSession& session, EffectInstance& instance);

// The file's text for an instance and its flattened record.
std::string ProjectFileText(const ParameterList& parameters, const EffectInstance& instance,
                            const std::vector<uint8_t>& record);
