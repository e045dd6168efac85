// Leads a file through reader, decoder and converter.
#include <new>

#include "workbench/Failure.h"
#include "workbench/audio/CodedSound.h"
#include "workbench/audio/Completeness.h"
#include "workbench/audio/MediaReader.h"
#include "workbench/audio/PacketDecoder.h"
#include "workbench/audio/StereoConverter.h"

void DecodeCodedSound(const std::filesystem::path& path, const TakeFrames& take) {
  MediaReader reader(path);
  int64_t frameCount = 0;
  StereoConverter converter([&](const int16_t* frames, int64_t count) {
    take(frames, count);
    frameCount += count;
  });
  PacketDecoder decoder(reader.Decoder(), reader.Sound(),
                        [&](const AVFrame& frame) { converter.Convert(frame); });
  const PacketOwner packet(av_packet_alloc());
  if (packet == nullptr) throw std::bad_alloc();
  while (reader.ReadPacket(*packet)) decoder.Decode(*packet);
  decoder.Flush();
  converter.Flush();
  if (frameCount == 0)
    throw JobFailure("has an audio track without a single sample. Export it again.");
  RequireWhole(reader, static_cast<double>(frameCount) / kClipSampleRateHz);
}
