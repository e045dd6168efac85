// Catches half a download that passes as a short song, and whole files that are taken for cut ones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>
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

const std::string kWav = WavBytes(std::vector<int16_t>(882000, 1000));  // 10 seconds
constexpr size_t kWavSecond = 176400;

TEST(CutFile, IsRefusedWithWhatItHoldsAndWhatWasPromised) {
  std::string late = kWav;
  late.insert(12, Chunk("JUNK", std::string(1'000'000, 'j')));
  EXPECT_THAT(Outcome(late.substr(0, 1'000'052 + 32 * 17640)),
              HasSubstr("song: holds 3.2 s of about 10.0 s that its header promises"));
  EXPECT_THAT(Outcome(AuBytes(441000).substr(0, 24 + 32 * 17640)),
              HasSubstr("song: holds 3.2 s of the 10.0 s that its header promises"));
  EXPECT_THAT(Outcome(OpusBytes(3).substr(0, OpusBytes(3).size() - 9)),
              HasSubstr("song: breaks off after 2.0 s"));
}

TEST(CutFile, IsNotWhatAWholeFileIsTakenFor) {
  EXPECT_EQ(Outcome(kWav), "whole");
  EXPECT_EQ(Outcome(AuBytes(441000)), "whole");
  EXPECT_EQ(Outcome(OpusBytes(3)), "whole");
  EXPECT_EQ(Outcome(kWav.substr(0, kWav.size() - kWavSecond / 5)), "whole") << "0.2 s less";
  const std::string slow = WavBytes(std::vector<int16_t>(100'000), 1, 1000);
  EXPECT_EQ(Outcome(slow.substr(0, slow.size() - 800)), "whole") << "0.4 of 100 s less";
  std::string piped = kWav;
  EXPECT_EQ(Outcome(piped.replace(40, 4, LittleEndian(0xFFFFFFFF, 4)).substr(0, 90000)), "whole")
      << "a size that was never filled in";
}

TEST(CutFile, IsNotAFilmThatGoesOnBehindItsSound) {
  std::vector<MatroskaPacket> packets = {{1, 0, std::string(16000, 0)}, {2, 2000, "The End"}};
  EXPECT_EQ(Outcome(MatroskaBytes(2000, packets)), "whole");
  packets.pop_back();
  EXPECT_THAT(Outcome(MatroskaBytes(2000, packets)), HasSubstr("holds 1.0 s of the 2.0 s"));
}

TEST(SoundExtent, IsReadFromTheChunkThatHoldsTheSound) {
  const std::string riff = "RIFF" + LittleEndian(300, 4);
  const std::string wav = riff + "WAVE" + Chunk("LIST", "12345") + "data";
  const std::tuple<std::string, int64_t, int64_t> cases[] = {
      {wav + LittleEndian(5000, 4), 34, 5034},
      {wav + LittleEndian(3, 4) + "abc" + Chunk("id3 ", "12"), 34, 37},
      {Chunk("RIFF", "AVI movie") + riff + "AVIX", 26, 326},
      // No statement: cut before the size, never filled in, just under 2 GiB, of another kind,
      // empty.
      {wav + LittleEndian(50, 2), 0, 0},
      {wav + LittleEndian(0, 4), 0, 0},
      {wav + LittleEndian(0x7FFFF000, 4), 0, 0},
      {".snd" + std::string(99, '\0'), 0, 0},
      {"", 0, 0},
  };
  for (const auto& [file, begin, end] : cases) {
    std::istringstream bytes(file);
    const SoundExtent extent = FindSoundExtent(bytes).value_or(SoundExtent());
    EXPECT_EQ(extent.begin, begin) << file.size() << " bytes";
    EXPECT_EQ(extent.end, end) << file.size() << " bytes";
  }
}

TEST(OggPages, AreCutOnlyWhereAPageIsNotWhole) {
  const std::string whole = OpusBytes(1);
  for (size_t size = 0; size <= whole.size(); ++size) {
    std::istringstream bytes(whole.substr(0, size));
    // Less than the mark of a page could be anything.
    const bool isBetweenPages = size == whole.size() || size - whole.rfind("OggS", size) < 4;
    EXPECT_EQ(EndsWithinOggPage(bytes), !isBetweenPages) << size << " bytes";
  }
  std::istringstream trailed(whole + "TAG and more");
  EXPECT_FALSE(EndsWithinOggPage(trailed));
}

}  // namespace
