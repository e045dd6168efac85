// Leads a file through reader, decoder and converter into a clip.
#include "workbench/audio/AudioDecoder.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <string>

#include "workbench/Failure.h"
#include "workbench/audio/Completeness.h"
#include "workbench/audio/MediaReader.h"
#include "workbench/audio/PacketDecoder.h"
#include "workbench/audio/StereoConverter.h"

namespace {

// A file's name may hold line breaks or a terminal's control codes; a message is one plain line.
std::string PrintableName(const std::filesystem::path& path) {
  std::string name = path.string();
  std::replace_if(
      name.begin(), name.end(),
      [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, '?');
  return name;
}

std::string InHours(double seconds) {
  char text[64] = {};
  std::snprintf(text, sizeof text, "%.3g hours", seconds / 3600);
  return text;
}

double Seconds(int64_t frames) {
  return static_cast<double>(frames) / kClipSampleRateHz;
}

AudioClip Decode(const std::filesystem::path& path, double longestSeconds) {
  MediaReader reader(path);
  AudioClipBuilder builder;
  StereoConverter converter([&](const int16_t* frames, int64_t count) {
    if (Seconds(builder.FrameCount() + count) > longestSeconds)
      throw JobFailure("is longer than " + InHours(longestSeconds) + ". Export the part you need.");
    builder.Append(frames, count);
  });
  PacketDecoder decoder(reader.Decoder(), reader.Sound(),
                        [&](const AVFrame& frame) { converter.Convert(frame); });
  const PacketOwner packet(av_packet_alloc());
  if (packet == nullptr) throw std::bad_alloc();
  while (reader.ReadPacket(*packet)) decoder.Decode(*packet);
  decoder.Flush();
  converter.Flush();
  if (builder.FrameCount() == 0)
    throw JobFailure("has an audio track without a single sample. Export it again.");
  RequireWhole(reader, Seconds(builder.FrameCount()));
  return builder.Finish();
}

}  // namespace

AudioClip DecodeAudioFile(const std::filesystem::path& path, double longestSeconds) {
  try {
    return Decode(path, longestSeconds);
  } catch (const JobFailure& failure) {
    throw JobFailure(PrintableName(path) + ": " + failure.what());
  } catch (const std::bad_alloc&) {
    throw JobFailure(PrintableName(path) +
                     ": needs more memory than there is. Export a part of it.");
  }
}
