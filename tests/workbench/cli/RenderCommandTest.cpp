// Catches frames of another time, size or name than asked for, files left behind by a render that
// failed, and a command line that is taken for another one.
#include <png.h>

#include <cstring>
#include <map>

#include "tests/workbench/cli/WorkbenchRun.h"
#include "tests/workbench/host/Pattern.h"

namespace {

namespace fs = std::filesystem;

struct Picture {
  int32_t width = 0, height = 0;
  std::vector<PF_Pixel8> pixels;
};

Picture Decoded(const std::string& png) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  EXPECT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0);
  image.format = PNG_FORMAT_ARGB;
  Picture picture{static_cast<int32_t>(image.width), static_cast<int32_t>(image.height), {}};
  picture.pixels.resize(size_t{image.width} * image.height);
  EXPECT_NE(png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr), 0);
  return picture;
}

class RenderCommand : public WorkbenchRun {
 protected:
  RenderCommand() { fs::create_directories(out); }

  // The options are parted by blanks.
  Outcome Render(const std::string& options) const {
    std::istringstream words("render a.wav --plugin " PATTERN_PLUGIN " " + options);
    return Run({std::istream_iterator<std::string>(words), {}});
  }

  // Names and bytes of what lies in out, which is emptied.
  std::map<std::string, std::string> TakeOutput() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(out)) {
      files[entry.path().filename().string()] = Read(entry.path());
      fs::remove(entry.path());
    }
    return files;
  }

  // What a render that must succeed leaves in out.
  std::map<std::string, std::string> Rendered(const std::string& options) const {
    const Outcome outcome = Render(options);
    EXPECT_EQ(outcome.status, 0) << options;
    EXPECT_EQ(outcome.err, "") << options;
    return TakeOutput();
  }

  const fs::path out = folder.Path() / "out";
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
  EXPECT_EQ(png.substr(24, 2), "\x08\x06") << "bits of a channel, and RGBA";
  const Picture picture = Decoded(png);
  ASSERT_TRUE(picture.width == e.width && picture.height == e.height) << what;
  int wrong = 0;
  for (int32_t i = 0; i < e.width * e.height; ++i) {
    const PF_Pixel8 pixel = PatternPixel(i % e.width, i / e.width, e.tick, e.spot, e.downsample);
    wrong +=
        std::memcmp(&pixel, &picture.pixels[static_cast<size_t>(i)], sizeof pixel) == 0 ? 0 : 1;
  }
  EXPECT_EQ(wrong, 0) << what;
}

TEST_F(RenderCommand, WritesOnePictureAFrameAtItsLayerTime) {
  const auto files = Rendered(
      "--frames -2..3 --out out/f%03d.png --size 40x30 --fps 30000/1001 --layer-start 0.5 "
      "--set Spot=12,21");
  EXPECT_EQ(NamesOf(files), "f-01.png f-02.png f000.png f001.png f002.png f003.png ");
  for (const auto& [name, bytes] : files) {
    ExpectPattern(bytes, {40, 30, std::stoi(name.substr(1)) * 1001 - 15000, {12, 21}}, name);
  }
}

TEST_F(RenderCommand, FindsTheLoudestFrameAlsoBehindALayersStart) {
  // The last 150 ms of the sound are around 0.925 s: frame 23.125 of 25 a second.
  for (const auto& [start, name] : {std::pair{"0", "23.png"}, {"2", "73.png"}}) {
    auto files = Rendered(std::string("--frames loudest --out out/%d.png --size 4x4 --fps 25 ") +
                          "--layer-start " + start);
    EXPECT_EQ(NamesOf(files), std::string(name) + ' ');
    ExpectPattern(files[name], {4, 4, 23, {0, 0}}, name);
  }
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
    ExpectPattern(Rendered(options + "--downsample " + downsample)["a.png"], expected, downsample);
  }
}

TEST_F(RenderCommand, GivesTheSameFilesWithManyThreadsAsWithOne) {
  for (const char* kind : {"--out out/%d.png --over checker", "--out out/a.mov --over none"}) {
    const std::string options = std::string("--frames 0..40 --size 90x70 ") + kind;
    const auto alone = Rendered(options);
    EXPECT_EQ(alone.size(), std::string(kind).ends_with("none") ? 1U : 41U);
    for (const char* threads : {"2", "7", "64"}) {
      EXPECT_TRUE(Rendered(options + " --threads " + threads) == alone) << kind << ' ' << threads;
    }
  }
}

TEST_F(RenderCommand, LaysTheGroundBehindTheFramesOnDemand) {
  const std::string options = "--frames 0 --out out/a.png --size 40x30 --over ";
  ExpectPattern(Rendered(options + "none")["a.png"], {40, 30, 0, {0, 0}}, "none");
  // Alpha is 0 in the first pixel of the pattern: the ground alone is seen.
  for (const auto& [ground, grey] : {std::pair{"black", 0}, {"checker", 0x99}}) {
    const Picture shown = Decoded(Rendered(options + ground)["a.png"]);
    EXPECT_EQ(shown.pixels[0].red, grey) << ground;
    for (const PF_Pixel8& pixel : shown.pixels) ASSERT_EQ(pixel.alpha, 255) << ground;
  }
}

TEST_F(RenderCommand, ThatFailsTellsWhyInOneLineAndLeavesTheOldFiles) {
  struct Case {
    const char* options;
    int status;
    const char* says;
  };
  const Case cases[] = {
      // Choice 7 fails at frame 5.
      {"--frames 0..9 --out out/%d.png --set Deed=7", 1, "Render: the plug-in returned 77"},
      {"--frames 0..9 --out out/a.mov --set Deed=7", 1, "Render: the plug-in returned 77"},
      {"--frames 0..9 --out out/%d.png --set Deed=7 --threads 4", 1, "returned 77"},
      {"--frames 0..9 --out out/%d.png --set Deed=Padding", 1, "wrote outside the world"},
      {"--frames 0..9 --out none/%d.png", 1, "the folder none does not exist; create it first"},
      {"--frames 0..9 --out none/a.mov", 1, "the folder none does not exist; create it first"},
      {"--frames 1 --out out", 2, "has to end in .png or .mov"},
      {"--frames 0..1 --out out/a.jpg", 2, "has to end in .png or .mov"},
      {"--frames 0..1 --out out/a.png", 2, "several frames need their numbers"},
      {"--frames 0..1 --out out/%s.png", 2, "takes one %d or %0Nd"},
      {"--frames 2..1 --out out/%d.png", 2, "ends before it starts"},
      {"--frames 0.. --out out/%d.png", 2, "--frames takes A..B, N or loudest"},
      {"--frames 99999999999 --out out/%d.png", 2, "--frames takes A..B, N or loudest"},
      {"--frames 2147483647 --out out/%d.png --fps 30/2", 2, "can't reach so far"},
      {"--out out/%d.png", 2, "--frames"},
      {"--frames 1", 2, "--out"},
      {"--frames 1 --out out/a.png --downsample 0", 2, "--downsample takes a whole number"},
      {"--frames 1 --out out/a.png --downsample 1.5", 2, "--downsample takes a whole number"},
      {"--frames 1 --out out/a.png --threads 0", 2, "--threads takes a whole number"},
      {"--frames 1 --out out/a.png --threads 65", 2, "--threads takes a whole number"},
      {"--frames 1 --out out/a.png --over red", 2, "--over takes checker, black or none"},
  };
  folder.Write("out/3.png", "old");
  for (const Case& c : cases) {
    const Outcome outcome = Render(std::string("--size 20x10 ") + c.options);
    EXPECT_EQ(outcome.status, c.status) << c.options << '\n' << outcome.err;
    EXPECT_NE(outcome.err.find(c.says), std::string::npos) << c.options << outcome.err;
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
    EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1) << c.options;
    EXPECT_EQ(Read(out / "3.png"), "old") << c.options;
  }
}

TEST_F(RenderCommand, ThatIsStoppedTakesItsUnfinishedFilesWithIt) {
  for (const char* kind : {"out/%d.png", "out/a.mov"}) {
    // The shell waits for the first unfinished file, stops the run and tells how it ended.
    const std::string command =
        "cd '" + folder.Path().string() +
        "' && { '" WORKBENCH "' render a.wav --plugin '" PATTERN_PLUGIN
        "' --frames 0..20000 --size 1920x1080 --out " +
        kind + " 2>err & run=$!; " +
        "while kill -0 $run 2>err2 && [ -z \"$(ls -A out)\" ]; do sleep 0.02; done; " +
        "kill -TERM $run; wait $run; }";
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1) << kind;
    EXPECT_NE(Read(folder.Path() / "err").find("stopped before the end"), std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 0) << kind;
  }
}

}  // namespace
