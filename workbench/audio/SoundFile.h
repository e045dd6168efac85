// A sound's file on disk, opened for reading.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>

struct SoundFile {
  std::ifstream stream;  // at the first byte
  int64_t size = 0;      // bytes, when the file was opened
};

// Throws JobFailure if `path` isn't a file that can be read. Special files count as none: a device
// may never end and a pipe may never begin.
SoundFile OpenSoundFile(const std::filesystem::path& path);

// The refusal of a file that the system stopped reading behind `position` bytes.
[[noreturn]] void RefuseUnreadable(int64_t position);
