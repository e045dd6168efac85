// Catches crashes, silence and unclear messages where a file is no sound, or not a file at all.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
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

// kSecond with another value in its header.
std::string Forged(size_t offset, uint64_t value, size_t size) {
  std::string bytes = kSecond;
  return bytes.replace(offset, size, LittleEndian(value, size));
}

constexpr size_t kChannelsOffset = 22;
constexpr size_t kRateOffset = 24;

struct BadCase {
  const char* what;
  std::function<path(const TemporaryFolder&)> make;
  const char* hint;
};

BadCase Bytes(const char* what, const std::string& bytes, const char* hint) {
  return {what, [=](const TemporaryFolder& folder) { return folder.Write("a.wav", bytes); }, hint};
}

const BadCase kBadCases[] = {
    {"no such file", [](const TemporaryFolder& folder) { return folder.Path() / "none.wav"; },
     "no such file"},
    {"a directory", [](const TemporaryFolder& folder) { return folder.Path(); }, "directory"},
    {"a device without end", [](const TemporaryFolder&) { return path("/dev/zero"); }, "device"},
    {"memory that can't be read", [](const TemporaryFolder&) { return path("/proc/self/mem"); },
     "could not be read past byte 0"},
    Bytes("empty", "", "can't be read as sound or video"),
    Bytes("text", "Dear diary, today I made no music.\n", "can't be read as sound or video"),
    Bytes("half a header", kSecond.substr(0, 30), "can't be read as sound or video"),
    Bytes("a list of other files", "ffconcat version 1.0\nfile a.wav\n", "can't be read as sound"),
    Bytes("an address to listen at",
          "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\nm=audio 5004 RTP/AVP 0\n",
          "can't be read as sound"),
    Bytes("no samples", WavBytes({}), "without a single sample"),
    Bytes("subtitles", "1\n00:00:01,000 --> 00:00:02,000\nHello.\n", "holds no sound"),
    Bytes("no channel", Forged(kChannelsOffset, 0, 2), ": "),
    Bytes("200 channels", Forged(kChannelsOffset, 200, 2), "channels"),
    Bytes("1 sample a second", Forged(kRateOffset, 1, 4), "rate of 1 samples"),
    Bytes("2 billion samples a second", Forged(kRateOffset, 2'000'000'000, 4),
          "rate of 2000000000"),
};

TEST(BadSoundFile, IsRefusedInOneLineThatNamesIt) {
  for (const BadCase& c : kBadCases) {
    const TemporaryFolder folder;
    const path file = c.make(folder);
    EXPECT_THAT(MessageFor(file),
                AllOf(StartsWith(file.string() + ": "), HasSubstr(c.hint), Not(HasSubstr("\n")),
                      Not(HasSubstr("error")), Not(HasSubstr("invalid"))))
        << c.what;
  }
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
}

TEST(BadSoundFile, OfAnyBytesEitherDecodesOrIsRefused) {
  const TemporaryFolder folder;
  constexpr unsigned kSeed = 20;
  std::mt19937 random(kSeed);
  const std::string matroska =
      MatroskaBytes(500, std::vector<MatroskaPacket>(20, {.content = SilentMp3Frame()}));
  for (int i = 0; i < 300; ++i) {
    std::string bytes = i % 2 == 0 ? kSecond.substr(0, 4000) : matroska;
    const size_t reach = std::min<size_t>(bytes.size(), random() % 2 == 0 ? 60 : 2000);
    for (uint32_t change = 0; change <= random() % 20; ++change)
      bytes[random() % reach] = static_cast<char>(random());
    const path file = folder.Write("a.wav", bytes);
    EXPECT_THAT(MessageFor(file), testing::AnyOf(StartsWith("decoded "), StartsWith(file.string())))
        << "seed " << kSeed << ", round " << i;
  }
}

}  // namespace
