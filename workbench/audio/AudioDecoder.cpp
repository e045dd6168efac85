// Tells raw sound from coded sound, and gathers either in a clip.
#include "workbench/audio/AudioDecoder.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <string>

#include "workbench/Failure.h"
#include "workbench/audio/CodedSound.h"
#include "workbench/audio/RawSound.h"

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

bool IsRawSound(const std::filesystem::path& path) {
  std::string extension = path.extension().string();
  for (char& letter : extension) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return extension == kRawSoundExtension;
}

AudioClip Decode(const std::filesystem::path& path, double longestSeconds) {
  AudioClipBuilder builder;
  const TakeFrames take = [&](const int16_t* frames, int64_t count) {
    const auto seconds = static_cast<double>(builder.FrameCount() + count) / kClipSampleRateHz;
    if (seconds > longestSeconds)
      throw JobFailure("is longer than " + InHours(longestSeconds) + ". Export the part you need.");
    builder.Append(frames, count);
  };
  if (IsRawSound(path)) {
    ReadRawSound(path, take);
  } else {
    DecodeCodedSound(path, take);
  }
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
