// Catches sound that changes on its way in: level, length, pitch, sides, lost frames at the end.
#include "workbench/audio/AudioDecoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "tests/workbench/audio/CodedSoundBytes.h"
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
  EXPECT_EQ(Decode(WavBytes({-32768, 32767})), (std::vector<int16_t>{-32768, 32767}));
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
    EXPECT_GT(Largest({decoded.end() - 400, decoded.end()}, 0), 15000) << rateHz << ": the end";
  }
}

struct SurroundCase {
  const char* what;
  size_t channel;
  bool isLeft;
  bool isRight;
};

TEST(AudioDecoder, MixesSixChannelsToTheirSides) {
  constexpr SurroundCase kCases[] = {
      {"front left", 0, true, false}, {"front right", 1, false, true}, {"centre", 2, true, true},
      {"back left", 4, true, false},  {"back right", 5, false, true},
  };
  for (const SurroundCase& c : kCases) {
    std::vector<int16_t> samples(size_t{6} * 4410);
    for (size_t i = 0; i < 4410; ++i)
      samples[6 * i + c.channel] =
          static_cast<int16_t>(Sine(20000, 441, static_cast<double>(i) / 44100));
    const std::vector<int16_t> decoded = Decode(WavBytes(samples, 6));
    ASSERT_EQ(decoded.size() / 2, 4410) << c.what;
    EXPECT_EQ(Largest(decoded, 0) > 4000, c.isLeft) << c.what;
    EXPECT_EQ(Largest(decoded, 1) > 4000, c.isRight) << c.what;
  }
}

TEST(AudioDecoder, MixesChannelsOfUnknownPlaceByTurns) {
  std::vector<int16_t> samples;
  for (int i = 0; i < 100; ++i)
    for (int channel = 0; channel < 9; ++channel)
      samples.push_back(static_cast<int16_t>(channel % 2 == 0 ? 1000 * channel : -500 * channel));
  const std::vector<int16_t> decoded = Decode(WavBytes(samples, 9));
  ASSERT_EQ(decoded.size() / 2, 100);
  for (size_t i = 0; i < 100; ++i) {
    EXPECT_NEAR(decoded[2 * i], 4000, 1);       // the mean of 0, 2000, 4000, 6000 and 8000
    EXPECT_NEAR(decoded[2 * i + 1], -2000, 1);  // the mean of -500, -1500, -2500 and -3500
  }
}

std::string Packed(const std::vector<int16_t>& samples) {
  std::string bytes;
  for (const int16_t sample : samples) bytes += LittleEndian(static_cast<uint16_t>(sample), 2);
  return bytes;
}

TEST(AudioDecoder, TakesOnePacketOfAnyLengthAndLeavesOtherTracksAlone) {
  const std::vector<int16_t> samples = AllValues();
  const std::string file = MatroskaBytes(
      1000, {{2, 0, "Subtitle"}, {1, 0, Packed(samples)}, {2, 9, "Next"}}, "A_PCM/INT/LIT");
  EXPECT_TRUE(Decode(file) == samples);
}

// Frames that come out of a Matroska file with these packets.
size_t FramesFrom(const std::vector<std::string>& contents) {
  std::vector<MatroskaPacket> packets(contents.size());
  for (size_t i = 0; i < contents.size(); ++i) packets[i].content = contents[i];
  return Decode(MatroskaBytes(1000, packets)).size() / 2;
}

TEST(AudioDecoder, GoesOnBehindPacketsThatCannotBeDecoded) {
  std::vector<std::string> packets(40, SilentMp3Frame());
  packets[20] = std::string(417, '\x55');
  // The frame behind a damaged one may go with it.
  EXPECT_THAT(FramesFrom(packets), testing::AnyOf(38 * 1152, 39 * 1152));
}

TEST(AudioDecoder, FollowsAStreamThatChangesItsRateAndChannels) {
  std::vector<std::string> packets(20, SilentMp3Frame());
  packets.insert(packets.begin() + 10, 30, SilentLowRateMp3Frame());
  // The decoder may tell a new rate one frame late.
  EXPECT_NEAR(static_cast<double>(FramesFrom(packets)), 20 * 1152 + 30 * 576 * 2, 1152);
}

}  // namespace
