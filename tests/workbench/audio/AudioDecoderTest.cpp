// Catches sound that changes on its way in: level, length, pitch, sides, lost frames at the end.
#include "workbench/audio/AudioDecoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "tests/workbench/audio/PlainSoundBytes.h"
#include "tests/workbench/audio/TemporaryFolder.h"

namespace {

std::vector<int16_t> Samples(const AudioClip& clip) {
  std::vector<int16_t> samples(2 * static_cast<size_t>(clip.FrameCount()));
  clip.CopyFrames(0, static_cast<int32_t>(clip.FrameCount()), samples.data());
  return samples;
}

std::vector<int16_t> Decode(const std::string& bytes) {
  const TemporaryFolder folder;
  return Samples(DecodeAudioFile(folder.Write("sound", bytes)));
}

// All values that 16 bits hold, in random order, twice over.
std::vector<int16_t> AllValues() {
  std::vector<int16_t> samples(size_t{2} * 65536);
  for (size_t i = 0; i < samples.size(); ++i) samples[i] = static_cast<int16_t>(i & 0xFFFFU);
  std::shuffle(samples.begin(), samples.end(), std::mt19937(3));
  return samples;
}

double Sine(double amplitude, double hertz, double seconds) {
  return amplitude * std::sin(2 * std::numbers::pi * hertz * seconds);
}

int Largest(const std::vector<int16_t>& samples, size_t side) {
  int largest = 0;
  for (size_t i = side; i < samples.size(); i += 2)
    largest = std::max(largest, std::abs(samples[i]));
  return largest;
}

TEST(AudioDecoder, LeavesEveryBitOfASoundThatHasTheClipsForm) {
  const std::vector<int16_t> samples = AllValues();
  EXPECT_TRUE(Decode(WavBytes(samples)) == samples);
}

TEST(AudioDecoder, PutsOneChannelOnBothSidesAtFullLevel) {
  const std::vector<int16_t> samples = AllValues();
  std::vector<int16_t> bothSides;
  for (const int16_t sample : samples) bothSides.insert(bothSides.end(), 2, sample);
  EXPECT_TRUE(Decode(WavBytes(samples, 1)) == bothSides);
}

TEST(AudioDecoder, ResamplesWithoutChangingPitchLevelPlaceOrLength) {
  for (const uint32_t rateHz : {8000U, 22050U, 48000U, 96000U}) {
    std::vector<int16_t> samples;
    for (uint32_t i = 0; i < rateHz; ++i)
      for (const double hertz : {1000.0, 441.0})
        samples.push_back(static_cast<int16_t>(std::lround(Sine(20000, hertz, 1.0 * i / rateHz))));
    const std::vector<int16_t> decoded = Decode(WavBytes(samples, 2, rateHz));
    ASSERT_NEAR(static_cast<double>(decoded.size()), 2 * 44100, 6) << rateHz;
    double furthest = 0;
    // The filter has no full view of the sound near its ends.
    for (size_t i = 1000; i < 43000; ++i) {
      const double seconds = static_cast<double>(i) / 44100;
      furthest = std::max(furthest, std::abs(decoded[2 * i] - Sine(20000, 1000, seconds)));
      furthest = std::max(furthest, std::abs(decoded[2 * i + 1] - Sine(20000, 441, seconds)));
    }
    EXPECT_LT(furthest, 40) << rateHz;
  }
}

TEST(AudioDecoder, MixesManyChannelsToTheirSides) {
  struct ChannelCase {
    uint32_t channels;
    size_t loudOne;
    bool isLeft, isRight;
  };
  // Six are front left, front right, centre, bass, back left, back right; nine have no places.
  constexpr ChannelCase kCases[] = {{6, 0, true, false}, {6, 1, false, true}, {6, 2, true, true},
                                    {6, 4, true, false}, {6, 5, false, true}, {9, 8, true, false},
                                    {9, 7, false, true}};
  for (const auto& [channels, loudOne, isLeft, isRight] : kCases) {
    std::vector<int16_t> samples(size_t{channels} * 4410);
    for (size_t i = loudOne; i < samples.size(); i += channels) samples[i] = 21000;
    const std::vector<int16_t> decoded = Decode(WavBytes(samples, channels));
    ASSERT_EQ(decoded.size() / 2, 4410) << channels;
    EXPECT_EQ(Largest(decoded, 0) > 4000, isLeft) << channels << ", " << loudOne;
    EXPECT_EQ(Largest(decoded, 1) > 4000, isRight) << channels << ", " << loudOne;
  }
}

TEST(AudioDecoder, GoesOnBehindAFrameThatCannotBeDecoded) {
  const std::string silence = "\xFF\xFB\x90" + std::string(414, '\0');  // 1152 frames of MP3
  std::string bytes;
  for (int i = 0; i < 40; ++i) bytes += silence;
  bytes.replace(20 * silence.size() + 4, 413, 413, '\x55');
  // The frame behind a damaged one may go with it.
  EXPECT_THAT(Decode(bytes).size() / 2, testing::AnyOf(38 * 1152, 39 * 1152));
}

}  // namespace
