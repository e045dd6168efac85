// A whole sound in memory, as a host's audio layer hands it out: stereo frames of 16 bits.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

constexpr int32_t kClipSampleRateHz = 44100;
constexpr int32_t kClipChannels = 2;

// Gets `count` interleaved frames of a sound in the making, valid for the call.
using TakeFrames = std::function<void(const int16_t* frames, int64_t count)>;

// A frame is two signed 16-bit samples, left first. The frames lie in blocks of one size, so that a
// long sound takes the room of its samples and no more while it grows.
class AudioClip {
 public:
  AudioClip() = default;

  int64_t FrameCount() const { return frameCount; }

  // Writes frames first .. first + count - 1 to `out`, interleaved.
  //
  // first   any value; frames before the sound and behind it are silence
  // count   frames; 0 or less writes nothing
  // out     room for 2 x count samples
  void CopyFrames(int64_t first, int32_t count, int16_t* out) const;

 private:
  friend class AudioClipBuilder;

  static constexpr int64_t kFramesPerBlock = 65536;
  using Block = std::array<int16_t, kFramesPerBlock * kClipChannels>;

  // Copies frames that all lie inside the sound.
  void CopyStored(int64_t first, int64_t count, int16_t* out) const;

  std::vector<std::unique_ptr<Block>> blocks;
  int64_t frameCount = 0;
};

// Makes a clip from its beginning to its end.
class AudioClipBuilder {
 public:
  // Adds `count` interleaved frames behind those that are there; `frames` is borrowed for the call.
  void Append(const int16_t* frames, int64_t count);

  int64_t FrameCount() const { return clip.frameCount; }

  // Hands out the clip; the builder is empty afterwards.
  AudioClip Finish();

 private:
  AudioClip clip;
};
