// The bytes of a file on disk, for FFmpeg to read and to seek in.
#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>

#include "workbench/FFmpeg.h"
#include "workbench/audio/SoundFile.h"

// FFmpeg gets bytes and needs no protocol to open them with, so that every protocol can be shut: no
// playlist, session description or reference in a file makes it open another one or the network.
class InputFile {
 public:
  // Throws JobFailure as OpenSoundFile does.
  explicit InputFile(const std::filesystem::path& path);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  // The size in bytes when the file was opened.
  int64_t Size() const { return opened.size; }

  // Owned by this object; valid as long as it lives.
  AVIOContext* Io() const { return io.get(); }

  // The same bytes, for the readers of chunk sizes. Not to be used while FFmpeg reads.
  std::istream& Stream() { return opened.stream; }

  // Throws JobFailure if a read has failed; the end of the file is no failure.
  void RequireReadable() const;

 private:
  static int Read(void* self, uint8_t* buffer, int bufferSize);
  static int64_t Seek(void* self, int64_t offset, int whence);

  SoundFile opened;
  int64_t position = 0;
  bool hasFailed = false;
  IoOwner io;
};
