// Samples as bytes, the low one first on every machine.
#include "workbench/audio/RawSound.h"

#include <algorithm>
#include <vector>

#include "workbench/Failure.h"
#include "workbench/audio/SoundFile.h"

namespace {

constexpr int64_t kBytesPerFrame = int64_t{kClipChannels} * 2;
constexpr int64_t kFramesPerPiece = 65536;

int16_t SampleFrom(char low, char high) {
  const auto byte = [](char c) { return static_cast<unsigned>(static_cast<unsigned char>(c)); };
  return static_cast<int16_t>(byte(high) << 8U | byte(low));
}

}  // namespace

void ReadRawSound(const std::filesystem::path& path, const TakeFrames& take) {
  SoundFile file = OpenSoundFile(path);
  if (file.size == 0) throw JobFailure("is empty. Make it again by workbench decode.");
  if (file.size % kBytesPerFrame != 0) {
    throw JobFailure("is " + std::to_string(file.size) +
                     " bytes long, which is no multiple of 4: raw sound is 44100 Hz stereo of 16 "
                     "bits, without a header. Make it by workbench decode.");
  }
  std::string bytes;
  std::vector<int16_t> samples;
  for (int64_t position = 0; position < file.size; position += std::ssize(bytes)) {
    const int64_t most = kFramesPerPiece * kBytesPerFrame;
    bytes.resize(static_cast<size_t>(std::min(most, file.size - position)));
    file.stream.read(bytes.data(), std::ssize(bytes));
    if (!file.stream) RefuseUnreadable(position + file.stream.gcount());
    samples.clear();
    for (size_t i = 0; i < bytes.size(); i += 2) {
      samples.push_back(SampleFrom(bytes[i], bytes[i + 1]));
    }
    take(samples.data(), std::ssize(bytes) / kBytesPerFrame);
  }
}

std::string RawSoundBytes(const AudioClip& clip, int64_t first, int32_t count) {
  std::vector<int16_t> samples(static_cast<size_t>(count) * kClipChannels);
  clip.CopyFrames(first, count, samples.data());
  std::string bytes;
  bytes.reserve(samples.size() * 2);
  for (const int16_t sample : samples) {
    const auto bits = static_cast<uint16_t>(sample);
    bytes += static_cast<char>(bits & 0xFFU);
    bytes += static_cast<char>(bits >> 8U);
  }
  return bytes;
}
