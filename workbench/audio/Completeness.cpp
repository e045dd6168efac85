// Weighs the signs of a cut file: the header's length, the sizes of chunks, the last Ogg page.
#include "workbench/audio/Completeness.h"

#include <cstdio>
#include <optional>
#include <string>

#include "workbench/Failure.h"
#include "workbench/audio/MediaReader.h"
#include "workbench/audio/OggPages.h"
#include "workbench/audio/SoundExtent.h"

namespace {

// Headers count padding that decoders trim, and round; both stay well below these.
constexpr double kMissingSeconds = 0.25;
constexpr double kMissingShare = 0.005;

std::string Tenths(double seconds) {
  char text[64] = {};
  std::snprintf(text, sizeof text, "%.1f s", seconds);
  return text;
}

// precision   "the" or "about", to stand before the stated length
void RequireLength(double heldSeconds, double statedSeconds, const char* precision) {
  const double missing = statedSeconds - heldSeconds;
  if (missing <= kMissingSeconds || missing <= kMissingShare * statedSeconds) return;
  throw JobFailure(
      "holds " + Tenths(heldSeconds) + " of " + precision + " " + Tenths(statedSeconds) +
      " that its header promises, so the file is incomplete. Copy or export it again.");
}

// The length that the decoded part would have in a file that reaches as far as its chunks say.
double SecondsByChunks(const SoundExtent& extent, int64_t fileBytes, double decodedSeconds) {
  if (extent.end <= fileBytes || extent.begin >= fileBytes) return decodedSeconds;
  return decodedSeconds * static_cast<double>(extent.end - extent.begin) /
         static_cast<double>(fileBytes - extent.begin);
}

}  // namespace

void RequireWhole(MediaReader& reader, double decodedSeconds) {
  RequireLength(reader.HeldSeconds(decodedSeconds), reader.StatedSeconds(), "the");
  InputFile& file = reader.File();
  const std::optional<SoundExtent> extent = FindSoundExtent(file.Stream());
  if (extent) {
    const double byChunks = SecondsByChunks(*extent, file.Size(), decodedSeconds);
    RequireLength(decodedSeconds, byChunks, "about");
  }
  if (EndsWithinOggPage(file.Stream()))
    throw JobFailure(
        "breaks off after " + Tenths(decodedSeconds) +
        " in the midst of a page, so the file is incomplete. Copy or export it again.");
}
