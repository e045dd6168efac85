// Catches frames of another time, size or name than asked for, files left behind by a render that
// failed, and a command line that is taken for another one.
#include <gtest/gtest.h>
#include <png.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include "workbench/audio/PlainSoundBytes.h"
#include "workbench/host/Pattern.h"

namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

struct Outcome {
  int status = -1;
  std::string errors;
};

class RenderCommand : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(folder / "out");
    // Two seconds, at their loudest from 1.2 s to 1.35 s.
    std::vector<int16_t> samples(size_t{88200} * 2, 1000);
    std::fill_n(samples.begin() + ptrdiff_t{52920} * 2, 6615 * 2, int16_t{20000});
    std::ofstream(folder / "sound.wav", std::ios::binary) << WavBytes(samples);
  }
  void TearDown() override { fs::remove_all(folder); }

  // Runs the workbench in the folder.
  Outcome Run(const std::string& options) const {
    const std::string command = "cd " + folder.string() +
                                " && " WORKBENCH " render sound.wav --plugin " PATTERN_PLUGIN " " +
                                options + " >stdout 2>stderr";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, BytesOf(folder / "stderr")};
  }

  void ExpectDone(const std::string& options) const {
    const Outcome outcome = Run(options);
    EXPECT_EQ(outcome.status, 0) << options;
    EXPECT_EQ(outcome.errors, "") << options;
  }

  // Names and bytes of what lies in out, which is emptied.
  std::map<std::string, std::string> TakeOutput() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder / "out")) {
      files[entry.path().filename().string()] = BytesOf(entry.path());
      fs::remove(entry.path());
    }
    return files;
  }

  const fs::path folder =
      fs::temp_directory_path() / ("delvior-render-" + std::to_string(getpid()));
};

std::string NamesOf(const std::map<std::string, std::string>& files) {
  std::string names;
  for (const auto& [name, bytes] : files) names += name + ' ';
  return names;
}

struct Expected {
  int32_t width, height;
  A_long tick;
  PF_Point spot;
  A_u_long downsample = 1;
};

void ExpectPattern(const std::string& png, const Expected& e, const std::string& what) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  ASSERT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0) << what;
  ASSERT_EQ(image.width, static_cast<png_uint_32>(e.width)) << what;
  ASSERT_EQ(image.height, static_cast<png_uint_32>(e.height)) << what;
  image.format = PNG_FORMAT_ARGB;
  std::vector<PF_Pixel8> read(size_t{image.width} * image.height);
  ASSERT_NE(png_image_finish_read(&image, nullptr, read.data(), 0, nullptr), 0) << what;
  int wrong = 0;
  for (int32_t y = 0; y < e.height; ++y) {
    for (int32_t x = 0; x < e.width; ++x) {
      const PF_Pixel8 pixel = PatternPixel(x, y, e.tick, e.spot, e.downsample);
      const PF_Pixel8& got = read[static_cast<size_t>(y) * image.width + static_cast<size_t>(x)];
      wrong += std::memcmp(&pixel, &got, sizeof pixel) == 0 ? 0 : 1;
    }
  }
  EXPECT_EQ(wrong, 0) << what;
}

TEST_F(RenderCommand, WritesOnePictureAFrameAtItsLayerTime) {
  ExpectDone(
      "--frames -2..3 --out out/f%03d.png --size 40x30 --fps 30000/1001 --layer-start 0.5 "
      "--set Spot=12,21");
  const auto files = TakeOutput();
  EXPECT_EQ(NamesOf(files), "f-01.png f-02.png f000.png f001.png f002.png f003.png ");
  for (const auto& [name, bytes] : files) {
    ExpectPattern(bytes, {40, 30, std::stoi(name.substr(1)) * 1001 - 15000, {12, 21}}, name);
  }
}

TEST_F(RenderCommand, FindsTheLoudestFrameAlsoBehindALayersStart) {
  // The loudest 150 ms are around 1.275 s of the sound: frame 31.875 of 25 a second.
  ExpectDone("--frames loudest --out out/a%d.png --size 4x4 --fps 25");
  ExpectDone("--frames loudest --out out/b%d.png --size 4x4 --fps 25 --layer-start 2");
  const auto files = TakeOutput();
  EXPECT_EQ(NamesOf(files), "a32.png b82.png ");
  for (const auto& [name, bytes] : files) ExpectPattern(bytes, {4, 4, 32, {0, 0}}, name);
}

TEST_F(RenderCommand, HandsOutASmallerWorldWithItsPointsWhenDownsampling) {
  const std::string options = "--frames 7 --out out/a.png --size 41x30 --set Spot=32,18 ";
  const std::pair<const char*, Expected> cases[] = {
      {"1", {41, 30, 7, {32, 18}}},
      {"2", {21, 15, 7, {16, 9}, 2}},
      {"4", {11, 8, 7, {8, 4}, 4}},
      {"30000", {1, 1, 7, {0, 0}, 30000}},
  };
  for (const auto& [downsample, expected] : cases) {
    ExpectDone(options + "--downsample " + downsample);
    ExpectPattern(TakeOutput()["a.png"], expected, downsample);
  }
}

TEST_F(RenderCommand, GivesTheSameFilesWithManyThreadsAsWithOne) {
  for (const char* kind : {"--out out/%d.png --over checker", "--out out/a.mov --over none"}) {
    const std::string options = std::string("--frames 0..40 --size 90x70 ") + kind;
    ExpectDone(options);
    const auto alone = TakeOutput();
    EXPECT_EQ(alone.size(), std::string(kind).ends_with("none") ? 1U : 41U);
    for (const char* threads : {"2", "7", "64"}) {
      ExpectDone(options + " --threads " + threads);
      EXPECT_TRUE(TakeOutput() == alone) << kind << ' ' << threads;
    }
  }
}

TEST_F(RenderCommand, LaysTheGroundBehindTheFramesOnDemand) {
  const std::string options = "--frames 0 --out out/a.png --size 40x30 --over ";
  std::map<std::string, std::string> shown;
  for (const char* ground : {"none", "black", "checker"}) {
    ExpectDone(options + ground);
    shown[ground] = TakeOutput()["a.png"];
  }
  ExpectPattern(shown["none"], {40, 30, 0, {0, 0}}, "none");
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  // Alpha is 0 in the first pixel of the pattern: the ground alone is seen.
  for (const auto& [ground, grey] : {std::pair{"black", 0}, {"checker", 0x99}}) {
    const std::string& png = shown[ground];
    ASSERT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0);
    image.format = PNG_FORMAT_RGBA;
    std::vector<uint8_t> read(PNG_IMAGE_SIZE(image));
    ASSERT_NE(png_image_finish_read(&image, nullptr, read.data(), 0, nullptr), 0);
    EXPECT_EQ(read[0], grey) << ground;
    for (size_t i = 3; i < read.size(); i += 4) ASSERT_EQ(read[i], 255) << ground;
  }
}

TEST_F(RenderCommand, ThatFailsTellsWhyInOneLineAndLeavesTheOldFiles) {
  struct Case {
    const char* options;
    int status;
    const char* says;
  };
  const Case cases[] = {
      {"--frames 0..9 --out out/%d.png --set \"Deed=Fail at 5\"", 1,
       "Render: the plug-in returned 77"},
      {"--frames 0..9 --out out/a.mov --set \"Deed=Fail at 5\"", 1,
       "Render: the plug-in returned 77"},
      {"--frames 0..9 --out out/%d.png --set \"Deed=Fail at 5\" --threads 4", 1, "returned 77"},
      {"--frames 0..9 --out out/%d.png --set Deed=Padding", 1, "wrote outside the world"},
      {"--frames 0..9 --out none/%d.png", 1, "the folder none does not exist; create it first"},
      {"--frames 0..9 --out none/a.mov", 1, "the folder none does not exist; create it first"},
      {"--frames 1 --out out", 2, "has to end in .png or .mov"},
      {"--frames 0..1 --out out/a.jpg", 2, "has to end in .png or .mov"},
      {"--frames 0..1 --out out/a.png", 2, "several frames need their numbers"},
      {"--frames 0..1 --out out/%s.png", 2, "takes one %d or %0Nd"},
      {"--frames 0..1 --out out/%d%d.png", 2, "takes one %d or %0Nd"},
      {"--frames 2..1 --out out/%d.png", 2, "ends before it starts"},
      {"--frames 0...1 --out out/%d.png", 2, "--frames takes A..B, N or loudest"},
      {"--frames 0.. --out out/%d.png", 2, "--frames takes A..B, N or loudest"},
      {"--frames 99999999999 --out out/%d.png", 2, "--frames takes A..B, N or loudest"},
      {"--frames \"\" --out out/%d.png", 2, "--frames takes A..B, N or loudest"},
      {"--frames 2147483647 --out out/%d.png --fps 30/2", 2, "can't reach so far"},
      {"--out out/%d.png", 2, "--frames"},
      {"--frames 1", 2, "--out"},
      {"--frames 1 --out out/a.png --downsample 0", 2, "--downsample takes a whole number"},
      {"--frames 1 --out out/a.png --downsample 1.5", 2, "--downsample takes a whole number"},
      {"--frames 1 --out out/a.png --downsample -2", 2, "--downsample takes a whole number"},
      {"--frames 1 --out out/a.png --threads 0", 2, "--threads takes a whole number"},
      {"--frames 1 --out out/a.png --threads 65", 2, "--threads takes a whole number"},
      {"--frames 1 --out out/a.png --over red", 2, "--over takes checker, black or none"},
  };
  std::ofstream(folder / "out" / "3.png") << "old";
  for (const Case& c : cases) {
    const Outcome outcome = Run(std::string("--size 20x10 ") + c.options);
    EXPECT_EQ(outcome.status, c.status) << c.options << '\n' << outcome.errors;
    EXPECT_NE(outcome.errors.find(c.says), std::string::npos) << c.options << outcome.errors;
    EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1) << outcome.errors;
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "out"), {}), 1) << c.options;
    EXPECT_EQ(BytesOf(folder / "out" / "3.png"), "old") << c.options;
  }
}

}  // namespace
