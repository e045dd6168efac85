// An opened sound or video file: the packets of its best audio stream, and its stated length.
#pragma once

#include <filesystem>

#include "workbench/FFmpeg.h"
#include "workbench/audio/InputFile.h"

class MediaReader {
 public:
  // Opens the file and chooses the stream.
  // Throws JobFailure: not a file, not readable, no sound or video, no audio stream, or a stream
  // that no decoder is there for.
  explicit MediaReader(const std::filesystem::path& path);

  const AVStream& Sound() const { return *format->streams[soundIndex]; }
  const AVCodec& Decoder() const { return *decoder; }
  InputFile& File() { return file; }

  // Replaces `packet` by the next one of the sound; false at the end of the file.
  // Throws JobFailure when reading stops before the end.
  bool ReadPacket(AVPacket& packet);

  // The length in seconds that the file's header states, 0 if it states none.
  double StatedSeconds() const { return statedSeconds; }

  // How much there was of what StatedSeconds counts; to be asked after the last packet.
  //
  // decodedSeconds   what the sound's packets came to
  double HeldSeconds(double decodedSeconds) const;

 private:
  void Open(const std::filesystem::path& path);
  void ChooseSound();
  void SkipOtherStreams();
  void NoteReach(const AVPacket& packet);

  InputFile file;
  FormatOwner format;
  const AVCodec* decoder = nullptr;
  unsigned soundIndex = 0;
  double statedSeconds = 0;
  bool isLengthOfSound = false;
  double reachSeconds = 0;
};
