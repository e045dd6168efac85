// From packets of one audio stream to frames of samples.
#pragma once

#include <functional>

#include "workbench/FFmpeg.h"

class PacketDecoder {
 public:
  using TakeFrame = std::function<void(const AVFrame&)>;

  // takeFrame   gets each frame, valid for the call. May throw.
  // Throws JobFailure if the stream's description makes no sense to its decoder.
  PacketDecoder(const AVCodec& decoder, const AVStream& stream, TakeFrame takeFrame);

  // Hands on the frames that `packet` completes. One that can't be decoded gives none.
  void Decode(const AVPacket& packet) { Send(&packet); }

  // Hands on the frames that the decoder held back; to be called once, after the last packet.
  void Flush() { Send(nullptr); }

 private:
  void Send(const AVPacket* packet);

  CodecOwner codec;
  FrameOwner frame;
  TakeFrame takeFrame;
};
