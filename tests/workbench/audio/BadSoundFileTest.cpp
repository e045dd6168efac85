// Catches crashes, silence and unclear messages where a file is no sound, or not a file at all.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "tests/workbench/audio/CodedSoundBytes.h"
#include "tests/workbench/audio/PlainSoundBytes.h"
#include "tests/workbench/audio/TemporaryFolder.h"
#include "workbench/Failure.h"
#include "workbench/audio/AudioDecoder.h"

namespace {

using std::filesystem::path;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string MessageFor(const path& file, double longestSeconds = kLongestSoundSeconds) {
  try {
    const AudioClip clip = DecodeAudioFile(file, longestSeconds);
    return "decoded " + std::to_string(clip.FrameCount()) + " frames";
  } catch (const JobFailure& failure) {
    return failure.what();
  }
}

const std::string kSecond = WavBytes(std::vector<int16_t>(88200, 1000));

void ExpectRefusal(const path& file, const char* hint) {
  const std::string name = file.string() + ": ";
  EXPECT_THAT(MessageFor(file), AllOf(StartsWith(name), HasSubstr(hint), Not(HasSubstr("\n"))));
}

TEST(BadSoundFile, IsRefusedInOneLineThatNamesIt) {
  const TemporaryFolder folder;
  ExpectRefusal(folder.Path() / "none.wav", "no such file");
  ExpectRefusal(folder.Path(), "directory");
  ExpectRefusal("/dev/zero", "device");
  ExpectRefusal("/proc/self/mem", "could not be read past byte 0");
}

TEST(BadSoundFile, IsRefusedForTheBytesInIt) {
  const std::pair<std::string, const char*> cases[] = {
      {"", "can't be read as sound or video"},
      {kSecond.substr(0, 30), "can't be read as sound or video"},
      // Files that make a player open others, or listen to the network.
      {"ffconcat version 1.0\nfile a.wav\n", "can't be read as sound"},
      {"v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\nm=audio 5004 RTP/AVP 0\n",
       "can't be read as sound"},
      {"1\n00:00:01,000 --> 00:00:02,000\nHello.\n", "holds no sound"},
      {WavBytes({}), "without a single sample"},
      {WavBytes(std::vector<int16_t>(400), 200), "has 200 channels"},
      {WavBytes({1, 1}, 2, 2'000'000'000), "rate of 2000000000"},
  };
  const TemporaryFolder folder;
  for (const auto& [bytes, hint] : cases) ExpectRefusal(folder.Write("a.wav", bytes), hint);
  ExpectRefusal(folder.Write("a.pcm", ""), "is empty");
  ExpectRefusal(folder.Write("a.PCM", "abcdef"), "is 6 bytes long, which is no multiple of 4");
}

TEST(BadSoundFile, KeepsControlCodesOfItsNameOutOfTheMessage) {
  const TemporaryFolder folder;
  EXPECT_THAT(MessageFor(folder.Path() / "a\nb\x1B[31m.wav"), HasSubstr("a?b?[31m.wav: there is"));
}

TEST(BadSoundFile, IsRefusedWhenItUnpacksToMoreThanTheLimit) {
  const TemporaryFolder folder;
  const path file = folder.Write("long.wav", kSecond);
  EXPECT_THAT(MessageFor(file, 0.999), HasSubstr("long.wav: is longer than"));
  EXPECT_EQ(MessageFor(file, 1.0), "decoded 44100 frames");
  const path raw = folder.Write("long.pcm", std::string(size_t{4} * 44100, 'a'));
  EXPECT_THAT(MessageFor(raw, 0.999), HasSubstr("long.pcm: is longer than"));
  EXPECT_EQ(MessageFor(raw, 1.0), "decoded 44100 frames");
}

TEST(BadSoundFile, OfAnyBytesEitherDecodesOrIsRefused) {
  const TemporaryFolder folder;
  std::mt19937 random(20);
  const std::string matroska = MatroskaBytes(500, {{1, 0, std::string(4000, 'a')}});
  for (int i = 0; i < 300; ++i) {
    std::string bytes = i % 2 == 0 ? kSecond.substr(0, 4000) : matroska;
    const size_t reach = random() % 2 == 0 ? 60 : 2000;
    for (uint32_t change = 0; change <= random() % 20; ++change)
      bytes[random() % reach] = static_cast<char>(random());
    const path file = folder.Write("a.wav", bytes);
    EXPECT_THAT(MessageFor(file), testing::AnyOf(StartsWith("decoded "), StartsWith(file.string())))
        << "seed 20, round " << i;
  }
}

}  // namespace
