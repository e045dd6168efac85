// Reads a file for FFmpeg and remembers whether the system refused to go on.
#include "workbench/audio/InputFile.h"

#include <cstdio>
#include <new>

namespace {

constexpr int kBufferBytes = 65536;

}  // namespace

InputFile::InputFile(const std::filesystem::path& path) : opened(OpenSoundFile(path)) {
  auto* const buffer = static_cast<unsigned char*>(av_malloc(kBufferBytes));
  if (buffer == nullptr) throw std::bad_alloc();
  io.reset(avio_alloc_context(buffer, kBufferBytes, 0, this, &Read, nullptr, &Seek));
  if (io != nullptr) return;
  av_free(buffer);
  throw std::bad_alloc();
}

void InputFile::RequireReadable() const {
  if (hasFailed) RefuseUnreadable(position);
}

int InputFile::Read(void* self, uint8_t* buffer, int bufferSize) {
  auto& file = *static_cast<InputFile*>(self);
  file.opened.stream.read(reinterpret_cast<char*>(buffer), bufferSize);
  const auto count = static_cast<int>(file.opened.stream.gcount());
  file.position += count;
  file.hasFailed = file.hasFailed || file.opened.stream.bad();
  if (count > 0) return count;
  return file.hasFailed ? AVERROR(EIO) : AVERROR_EOF;
}

int64_t InputFile::Seek(void* self, int64_t offset, int whence) {
  auto& file = *static_cast<InputFile*>(self);
  if ((whence & AVSEEK_SIZE) != 0) return file.opened.size;
  // FFmpeg turns the other two ways into this one before it calls.
  if ((whence & ~AVSEEK_FORCE) != SEEK_SET || offset < 0) return AVERROR(EINVAL);
  file.opened.stream.clear();
  file.opened.stream.seekg(offset);
  if (!file.opened.stream) return AVERROR(EIO);
  file.position = offset;
  return offset;
}
