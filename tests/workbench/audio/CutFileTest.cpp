// Catches half a download that passes as a short song, and whole files that are taken for cut ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/workbench/audio/CodedSoundBytes.h"
#include "tests/workbench/audio/PlainSoundBytes.h"
#include "tests/workbench/audio/TemporaryFolder.h"
#include "workbench/Failure.h"
#include "workbench/audio/AudioDecoder.h"
#include "workbench/audio/OggPages.h"
#include "workbench/audio/SoundExtent.h"

namespace {

using testing::HasSubstr;

std::string Outcome(const std::string& bytes) {
  const TemporaryFolder folder;
  try {
    DecodeAudioFile(folder.Write("song", bytes));
    return "whole";
  } catch (const JobFailure& failure) {
    return failure.what();
  }
}

std::vector<MatroskaPacket> SilentSeconds(uint64_t seconds) {
  std::vector<MatroskaPacket> packets;
  for (uint64_t i = 0; i * 1152 < seconds * 44100; ++i)
    packets.push_back({1, i * 1152 * 1000 / 44100, SilentMp3Frame()});
  return packets;
}

const std::string kWav = WavBytes(std::vector<int16_t>(882000, 1000));  // 10 seconds

TEST(CutFile, IsRefusedWithWhatItHoldsAndWhatWasPromised) {
  EXPECT_THAT(Outcome(kWav.substr(0, 44 + 32 * 17640)),
              HasSubstr("song: holds 3.2 s of about 10.0 s that its header promises"));
  std::string late = kWav;
  late.insert(12, Chunk("JUNK", std::string(1'000'000, 'j')));
  EXPECT_THAT(Outcome(late.substr(0, 1'000'052 + 32 * 17640)),
              HasSubstr("song: holds 3.2 s of about 10.0 s that its header promises"));
  EXPECT_THAT(Outcome(AuBytes(441000).substr(0, 24 + 32 * 17640)),
              HasSubstr("song: holds 3.2 s of the 10.0 s that its header promises"));
  EXPECT_THAT(Outcome(MatroskaBytes(10000, SilentSeconds(5))),
              HasSubstr("song: holds 5.0 s of the 10.0 s that its header promises"));
  EXPECT_THAT(Outcome(OpusBytes(3).substr(0, OpusBytes(3).size() - 9)),
              HasSubstr("song: breaks off after 2.0 s"));
}

TEST(CutFile, IsNotWhatAWholeFileIsTakenFor) {
  EXPECT_EQ(Outcome(kWav), "whole");
  EXPECT_EQ(Outcome(AuBytes(441000)), "whole");
  EXPECT_EQ(Outcome(OpusBytes(3)), "whole");
  EXPECT_EQ(Outcome(MatroskaBytes(100'400, SilentSeconds(100))), "whole") << "rounded generously";
  EXPECT_EQ(Outcome(kWav.substr(0, kWav.size() - 8)), "whole") << "a header off by a little";
  std::string piped = kWav;
  EXPECT_EQ(Outcome(piped.replace(40, 4, LittleEndian(0xFFFFFFFF, 4)).substr(0, 90000)), "whole")
      << "a size that was never filled in";
  std::string guessed;
  for (int i = 0; i < 200; ++i)
    guessed += i < 150 ? SilentMp3Frame('\x10', 104) : SilentMp3Frame('\xE0', 1044);
  EXPECT_EQ(Outcome(guessed), "whole") << "a length guessed from the rate of the first frames";
}

TEST(CutFile, IsNotAFilmThatGoesOnBehindItsSound) {
  std::vector<MatroskaPacket> packets = SilentSeconds(1);
  packets.push_back({2, 2000, "The End"});
  EXPECT_EQ(Outcome(MatroskaBytes(2000, packets)), "whole");
  packets.pop_back();
  EXPECT_THAT(Outcome(MatroskaBytes(2000, packets)), HasSubstr("of the 2.0 s"));
}

std::string Wide(std::string_view id, uint64_t size) {
  return std::string(id) + LittleEndian(size, 8);
}

std::string Id(std::string_view start) {
  return std::string(start) + std::string(16 - start.size(), '\x07');
}

const std::string kSonyWaveHead = "riff\x2E\x91\xCF\x11\xA5\xD6\x28\xDB" +
                                  std::string("\x04\xC1\0\0", 4) + std::string(8, '\x09') +
                                  std::string(16, 'w');
const std::string kSonyWaveData =
    std::string("data\xF3\xAC\xD3\x11\x8C\xD1\0\xC0\x4F\x8E\xDB\x8A", 16);
const std::string kAsfHead =
    std::string("\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\0\xAA\0\x62\xCE\x6C", 16);
const std::string kAsfData =
    std::string("\x36\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\0\xAA\0\x62\xCE\x6C", 16);
const std::string kWavHead = "RIFF" + LittleEndian(9000, 4) + "WAVE" + Chunk("LIST", "12345");

struct ExtentCase {
  const char* what;
  std::string bytes;
  int64_t begin;  // 0: no statement
  int64_t end;
};

const ExtentCase kExtentCases[] = {
    {"WAV, behind a chunk of odd length", kWavHead + "data" + LittleEndian(5000, 4), 34, 5034},
    {"WAV, more chunks behind the sound", kWavHead + Chunk("data", "123") + Chunk("id3 ", "12"), 34,
     37},
    {"WAV, cut before its sound", kWavHead + "data" + LittleEndian(50, 2), 0, 0},
    {"WAV, never filled in", kWavHead + "data" + LittleEndian(0, 4), 0, 0},
    {"WAV, just under 2 GiB", kWavHead + "data" + LittleEndian(0x7FFFF000, 4), 0, 0},
    {"WAV, just under 4 GiB", kWavHead + "data" + LittleEndian(0xFFFFFFDB, 4), 0, 0},
    {"film in one part", "RIFF" + LittleEndian(7000, 4) + "AVI LIST", 8, 7008},
    {"film in two parts", Chunk("RIFF", "AVI movie") + "RIFF" + LittleEndian(300, 4) + "AVIX", 26,
     326},
    {"W64", kSonyWaveHead + Wide(Id("fmt "), 33) + std::string(16, 'f') + Wide(kSonyWaveData, 4024),
     104, 4104},
    {"W64, a chunk smaller than its head",
     kSonyWaveHead + Wide(Id("fmt "), 0) + std::string(99, 'f'), 0, 0},
    {"CAF",
     "caff" + BigEndian(0x10000, 4) + "desc" + BigEndian(3, 8) + "123data" + BigEndian(600, 8), 35,
     635},
    {"CAF, never filled in", "caff" + BigEndian(0x10000, 4) + "data" + std::string(8, '\xFF'), 0,
     0},
    {"ASF", Wide(kAsfHead, 30) + "header" + Wide(kAsfData, 1024), 54, 1054},
    {"ASF, a size past all bounds", Wide(kAsfHead, uint64_t{1} << 63) + std::string(99, 'x'), 0, 0},
    {"another kind", ".snd" + std::string(99, '\0'), 0, 0},
    {"nothing", "", 0, 0},
};

TEST(SoundExtent, IsReadFromTheChunkThatHoldsTheSound) {
  for (const ExtentCase& c : kExtentCases) {
    std::istringstream bytes(c.bytes);
    const SoundExtent extent = FindSoundExtent(bytes).value_or(SoundExtent());
    EXPECT_EQ(extent.begin, c.begin) << c.what;
    EXPECT_EQ(extent.end, c.end) << c.what;
  }
}

TEST(OggPages, AreCutOnlyWhereAPageIsNotWhole) {
  const std::string first =
      "OggS" + std::string(22, '\0') + "\x02" + "\xFF\x05" + std::string(260, 'a');
  const std::string second = "OggS" + std::string(22, '\0') + "\x01" + "\x07" + std::string(7, 'b');
  const std::string both = first + second;
  for (size_t size = 0; size <= both.size(); ++size) {
    std::istringstream bytes(both.substr(0, size));
    // Less than the mark of a page could be anything.
    const bool isBetweenPages =
        size < 4 || size == both.size() || (size >= first.size() && size < first.size() + 4);
    EXPECT_EQ(EndsWithinOggPage(bytes), !isBetweenPages) << size << " bytes";
  }
  std::istringstream trailed(both + "TAG and more");
  EXPECT_FALSE(EndsWithinOggPage(trailed));
}

}  // namespace
