// The decode command.
#include "workbench/cli/DecodeCommand.h"

#include <algorithm>
#include <iostream>

#include "workbench/Failure.h"
#include "workbench/audio/AudioDecoder.h"
#include "workbench/audio/RawSound.h"
#include "workbench/export/PartFile.h"

int RunDecode(const DecodeOptions& options) {
  constexpr int64_t kFramesPerPiece = 65536;
  if (options.out.extension() != kRawSoundExtension) {
    throw UsageFailure("--out " + options.out.string() + ": the file's name has to end in .pcm.");
  }
  RequireTarget(options.out);
  const AudioClip clip = DecodeAudioFile(options.audio);
  PartFile file(options.out);
  for (int64_t first = 0; first < clip.FrameCount(); first += kFramesPerPiece) {
    const int64_t count = std::min(kFramesPerPiece, clip.FrameCount() - first);
    file.Write(RawSoundBytes(clip, first, static_cast<int32_t>(count)));
  }
  file.Close();
  file.Publish();
  if (!options.quiet) {
    std::cout << clip.FrameCount() << " frames of stereo at " << kClipSampleRateHz
              << " Hz\nWritten to " << options.out.string() << "\n";
  }
  return 0;
}
