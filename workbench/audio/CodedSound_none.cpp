// Refuses coded sound: this program has no codecs.
#include "workbench/Failure.h"
#include "workbench/audio/CodedSound.h"
#include "workbench/audio/SoundFile.h"

void DecodeCodedSound(const std::filesystem::path& path, const TakeFrames& /*take*/) {
  OpenSoundFile(path);  // what is wrong with the path itself goes first
  throw JobFailure(
      "is not raw sound, and this workbench has no codecs: it takes 44100 Hz stereo of 16 bits in "
      "a "
      ".pcm file. Make one where the codecs are, by workbench decode AUDIO --out sound.pcm.");
}
