// Tells apart the reasons why there is nothing to read.
#include "workbench/audio/SoundFile.h"

#include <string>
#include <system_error>

#include "workbench/Failure.h"

namespace {

int64_t SizeOfRegularFile(const std::filesystem::path& path) {
  std::error_code code;
  const std::filesystem::file_status status = std::filesystem::status(path, code);
  if (status.type() == std::filesystem::file_type::not_found)
    throw JobFailure("there is no such file. Check the path.");
  if (status.type() == std::filesystem::file_type::directory)
    throw JobFailure("is a directory. Give the path of a sound or video file.");
  if (status.type() == std::filesystem::file_type::none)
    throw JobFailure("could not be looked at. Check the path and the permissions of its folders.");
  if (status.type() != std::filesystem::file_type::regular)
    throw JobFailure("is a device or a pipe. Give the path of a sound or video file.");
  const uintmax_t size = std::filesystem::file_size(path, code);
  return code ? 0 : static_cast<int64_t>(size);
}

}  // namespace

SoundFile OpenSoundFile(const std::filesystem::path& path) {
  SoundFile file{{}, SizeOfRegularFile(path)};
  file.stream.open(path, std::ios::binary);
  if (!file.stream) throw JobFailure("could not be opened for reading. Check its permissions.");
  return file;
}

void RefuseUnreadable(int64_t position) {
  throw JobFailure("could not be read past byte " + std::to_string(position) +
                   ". Check the disk or the connection and try again.");
}
