// Frames as a QuickTime movie with alpha.
#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>

#include "workbench/FFmpeg.h"
#include "workbench/export/FrameOutput.h"
#include "workbench/export/PartFile.h"

// One video track in the Animation codec, which keeps all four channels bit for bit.
class MovieFile : public FrameOutput {
 public:
  // target          a name that ends in .mov
  // width, height   of every frame
  // scale, step     scale / step frames a second
  MovieFile(const std::filesystem::path& target, int32_t width, int32_t height, uint32_t scale,
            int32_t step);

  // There is nothing to do beforehand: the codec stores what changes from frame to frame.
  std::string Encode(const FramePixels& /*pixels*/) const override { return {}; }
  void Add(int64_t number, const FramePixels& pixels, const std::string& encoded) override;
  void Publish() override;

 private:
  void OpenFile();
  void OpenCodec(int32_t width, int32_t height);
  void Send(const AVFrame* next);

  // Throws where FFmpeg's answer is a failure; the file's own failure goes before it.
  void Require(int answer, const char* what);

  static int WriteBytes(void* self, uint8_t* bytes, int count);
  static int64_t SeekTo(void* self, int64_t offset, int whence);

  PartFile file;
  std::exception_ptr fileFailure;
  IoOwner io;
  OutputFormatOwner format;
  CodecOwner codec;
  FrameOwner frame;
  PacketOwner packet;
  AVRational frameTime;
  int64_t frameCount = 0;
};
