// Catches raw sound that isn't the sound it was made from.
#include "tests/workbench/cli/WorkbenchRun.h"

namespace {

class Decode : public WorkbenchRun {};

TEST_F(Decode, WritesTheSamplesAloneAndTheyMakeTheSameKeyframes) {
  std::vector<int16_t> samples;
  // Every value, over more frames than are read or written at once.
  for (int i = 0; i < 3 * 65536; ++i) samples.push_back(static_cast<int16_t>(i % 65536 - 32768));
  const std::string wav = WavBytes(samples);
  folder.Write("all.wav", wav);
  ASSERT_EQ(Run({"decode", "all.wav", "--out", "all.pcm"}).status, 0);
  EXPECT_TRUE(Read(folder.Path() / "all.pcm") == wav.substr(wav.size() - samples.size() * 2));
  ASSERT_EQ(Run({"decode", "all.pcm", "--out", "again.pcm"}).status, 0);
  EXPECT_TRUE(Read(folder.Path() / "again.pcm") == Read(folder.Path() / "all.pcm"));

  ASSERT_EQ(Run({"decode", "a.wav", "--out", "a.pcm"}).status, 0);
  std::filesystem::rename(folder.Path() / "a.pcm", folder.Path() / "A.PCM");
  const Outcome raw = Run({"apply", "A.PCM", "--set", "Channel=Left", "--out", "raw.csv"});
  EXPECT_EQ(raw.status, 0) << raw.err;
  EXPECT_EQ(Read(folder.Path() / "raw.csv"), Apply(""));
}

}  // namespace
