// Runs one FFmpeg audio decoder.
#include "workbench/audio/PacketDecoder.h"

#include <new>
#include <utility>

#include "workbench/Failure.h"

namespace {

// A packet may hold several frames and be damaged in some; a decoder that only refuses is left.
constexpr int kMostRefusalsPerPacket = 100;

}  // namespace

PacketDecoder::PacketDecoder(const AVCodec& decoder, const AVStream& stream, TakeFrame take)
    : codec(avcodec_alloc_context3(&decoder)), frame(av_frame_alloc()), takeFrame(std::move(take)) {
  if (codec == nullptr || frame == nullptr) throw std::bad_alloc();
  const bool isSetUp = avcodec_parameters_to_context(codec.get(), stream.codecpar) >= 0;
  // Without the time base the decoder can't trim the padding that encoders put around the sound.
  codec->pkt_timebase = stream.time_base;
  if (!isSetUp || avcodec_open2(codec.get(), &decoder, nullptr) < 0)
    throw JobFailure(
        "describes its sound in a way that its decoder refuses. Try another copy, or convert it to "
        "WAV or FLAC.");
}

void PacketDecoder::Send(const AVPacket* packet) {
  // Whatever it refuses shows as missing sound; even "no memory" only means a forged size.
  avcodec_send_packet(codec.get(), packet);
  int refusals = 0;
  while (refusals < kMostRefusalsPerPacket) {
    const int result = avcodec_receive_frame(codec.get(), frame.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return;
    if (result >= 0) {
      takeFrame(*frame);
    } else {
      ++refusals;
    }
  }
}
