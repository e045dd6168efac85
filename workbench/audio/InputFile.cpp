// Reads a file for FFmpeg and remembers whether the system refused to go on.
#include "workbench/audio/InputFile.h"

#include <cstdio>
#include <new>
#include <string>
#include <system_error>

#include "workbench/Failure.h"

namespace {

constexpr int kBufferBytes = 65536;

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

InputFile::InputFile(const std::filesystem::path& path) : size(SizeOfRegularFile(path)) {
  stream.open(path, std::ios::binary);
  if (!stream) throw JobFailure("could not be opened for reading. Check its permissions.");
  auto* const buffer = static_cast<unsigned char*>(av_malloc(kBufferBytes));
  if (buffer == nullptr) throw std::bad_alloc();
  io.reset(avio_alloc_context(buffer, kBufferBytes, 0, this, &Read, nullptr, &Seek));
  if (io != nullptr) return;
  av_free(buffer);
  throw std::bad_alloc();
}

void InputFile::RequireReadable() const {
  if (!hasFailed) return;
  throw JobFailure("could not be read past byte " + std::to_string(position) +
                   ". Check the disk or the connection and try again.");
}

int InputFile::Read(void* self, uint8_t* buffer, int bufferSize) {
  auto& file = *static_cast<InputFile*>(self);
  file.stream.read(reinterpret_cast<char*>(buffer), bufferSize);
  const auto count = static_cast<int>(file.stream.gcount());
  file.position += count;
  file.hasFailed = file.hasFailed || file.stream.bad();
  if (count > 0) return count;
  return file.hasFailed ? AVERROR(EIO) : AVERROR_EOF;
}

int64_t InputFile::Seek(void* self, int64_t offset, int whence) {
  auto& file = *static_cast<InputFile*>(self);
  if ((whence & AVSEEK_SIZE) != 0) return file.size;
  // FFmpeg turns the other two ways into this one before it calls.
  if ((whence & ~AVSEEK_FORCE) != SEEK_SET || offset < 0) return AVERROR(EINVAL);
  file.stream.clear();
  file.stream.seekg(offset);
  if (!file.stream) return AVERROR(EIO);
  file.position = offset;
  return offset;
}
