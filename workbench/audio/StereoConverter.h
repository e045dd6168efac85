// Turns decoded frames of any sample format, layout and rate into stereo of 16 bits at 44100 Hz.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "workbench/FFmpeg.h"
#include "workbench/audio/AudioClip.h"

class StereoConverter {
 public:
  // take   may throw
  explicit StereoConverter(TakeFrames take);

  // One channel goes to both sides at full level, two stay as they are, more are mixed down. Frames
  // that have the clip's form already keep their bits.
  //
  // The form may change from frame to frame, as it does in chained or broken streams.
  // Throws JobFailure for a rate or a number of channels that no resampler is there for.
  void Convert(const AVFrame& frame);

  // Hands on what the resampler held back; to be called once, after the last frame.
  void Flush();

 private:
  struct Form {
    int sampleFormat = AV_SAMPLE_FMT_NONE;
    int rateHz = 0;
    int channels = 0;
    uint64_t speakers = 0;  // mask of the channels' places, 0 if the frame doesn't say them

    bool operator==(const Form&) const = default;
  };

  static Form FormOf(const AVFrame& frame);
  static ResamplerOwner MakeResampler(const Form& form);
  static ResamplerOwner TryResampler(const Form& form, AVChannelLayout layout,
                                     std::span<const double> matrix);
  // Returns the number of frames handed on, `room` at most. Null planes and 0 frames let the
  // resampler give out what it has left.
  int ConvertPiece(const uint8_t* const* planes, int frameCount, int room);

  TakeFrames takeFrames;
  Form form;
  ResamplerOwner resampler;
  std::vector<int16_t> converted;
};
