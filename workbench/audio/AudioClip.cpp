// Frames of a sound in blocks, and windows copied out of them.
#include "workbench/audio/AudioClip.h"

#include <algorithm>
#include <utility>

void AudioClip::CopyFrames(int64_t first, int32_t count, int16_t* out) const {
  if (count <= 0) return;
  // Compared before any sum is formed: first + count may not fit into 64 bits.
  if (first >= frameCount || first <= -int64_t{count}) {
    std::fill_n(out, int64_t{count} * kClipChannels, int16_t{0});
    return;
  }
  const int64_t before = std::max<int64_t>(0, -first);
  const int64_t inside = std::min(int64_t{count}, frameCount - first) - before;
  const int64_t behind = count - before - inside;
  int16_t* const sound = std::fill_n(out, before * kClipChannels, int16_t{0});
  CopyStored(first + before, inside, sound);
  std::fill_n(sound + inside * kClipChannels, behind * kClipChannels, int16_t{0});
}

void AudioClip::CopyStored(int64_t first, int64_t count, int16_t* out) const {
  while (count > 0) {
    const int64_t offset = first % kFramesPerBlock;
    const int64_t piece = std::min(count, kFramesPerBlock - offset);
    const Block& block = *blocks[static_cast<size_t>(first / kFramesPerBlock)];
    out = std::copy_n(block.data() + offset * kClipChannels, piece * kClipChannels, out);
    first += piece;
    count -= piece;
  }
}

void AudioClipBuilder::Append(const int16_t* frames, int64_t count) {
  while (count > 0) {
    const int64_t offset = clip.frameCount % AudioClip::kFramesPerBlock;
    if (offset == 0) clip.blocks.push_back(std::make_unique<AudioClip::Block>());
    const int64_t piece = std::min(count, AudioClip::kFramesPerBlock - offset);
    std::copy_n(frames, piece * kClipChannels, clip.blocks.back()->data() + offset * kClipChannels);
    frames += piece * kClipChannels;
    clip.frameCount += piece;
    count -= piece;
  }
}

AudioClip AudioClipBuilder::Finish() {
  return std::exchange(clip, AudioClip());
}
