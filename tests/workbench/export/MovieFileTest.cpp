// Catches a movie that loses pixels, frames or its rate, and half a movie on a full disk.
#include "workbench/export/MovieFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstring>
#include <random>

#include "tests/workbench/audio/TemporaryFolder.h"
#include "workbench/Failure.h"

namespace {

namespace fs = std::filesystem;

using Pixels = std::vector<PF_Pixel8>;

struct Movie {
  AVRational rate;
  std::vector<Pixels> frames;
};

// Every frame of the file as FFmpeg decodes it.
Movie Decoded(const fs::path& path) {
  AVFormatContext* context = nullptr;
  EXPECT_EQ(avformat_open_input(&context, path.c_str(), nullptr, nullptr), 0) << path;
  const FormatOwner format(context);
  EXPECT_GE(avformat_find_stream_info(context, nullptr), 0);
  const AVStream& stream = *context->streams[0];
  const CodecOwner codec(avcodec_alloc_context3(avcodec_find_decoder(stream.codecpar->codec_id)));
  avcodec_parameters_to_context(codec.get(), stream.codecpar);
  EXPECT_EQ(avcodec_open2(codec.get(), nullptr, nullptr), 0);
  Movie movie{stream.avg_frame_rate, {}};
  const FrameOwner frame(av_frame_alloc());
  const PacketOwner packet(av_packet_alloc());
  for (bool ended = false; !ended;) {
    ended = av_read_frame(context, packet.get()) < 0;
    avcodec_send_packet(codec.get(), ended ? nullptr : packet.get());
    av_packet_unref(packet.get());
    while (avcodec_receive_frame(codec.get(), frame.get()) == 0) {
      EXPECT_EQ(frame->format, AV_PIX_FMT_ARGB);
      Pixels& pixels = movie.frames.emplace_back();
      for (int y = 0; y < frame->height; ++y) {
        const void* row = frame->data[0] + ptrdiff_t{y} * frame->linesize[0];
        const auto* first = static_cast<const PF_Pixel8*>(row);
        pixels.insert(pixels.end(), first, first + frame->width);
      }
    }
  }
  return movie;
}

class MovieFileTest : public testing::Test {
 protected:
  const TemporaryFolder folder;
  const fs::path path = folder.Path() / "a.mov";
};

// A frame differs from the one before in a few runs of pixels, as those of an analyser do.
std::vector<Pixels> SomeFrames(size_t count, size_t size) {
  std::mt19937 random(11);
  std::vector<Pixels> frames;
  Pixels pixels(size, PF_Pixel8{});
  for (size_t frame = 0; frame < count; ++frame) {
    for (int run = 0; run < 9; ++run) {
      PF_Pixel8 value{};
      const auto bits = static_cast<uint32_t>(random());
      std::memcpy(&value, &bits, sizeof value);
      if (run == 0) value.alpha = 0;
      const size_t first = random() % size;
      const size_t last = std::min<size_t>(size, first + random() % 40 + 1);
      for (size_t i = first; i < last; ++i) pixels[i] = value;
    }
    frames.push_back(pixels);
  }
  return frames;
}

TEST_F(MovieFileTest, DecodesToTheSamePixelsFramesAndRate) {
  struct Case {
    int32_t width, height;
    uint32_t scale;
    int32_t step;
    size_t frames;
  };
  const Case cases[] = {{33, 17, 30, 1, 40},
                        {64, 40, 30000, 1001, 7},
                        {1, 1, 24, 1, 3},
                        {5, 1, 25, 2, 1},
                        {2, 9, 1000000, 1, 2}};
  for (const Case& c : cases) {
    fs::remove(path);
    const auto frames = SomeFrames(c.frames, static_cast<size_t>(int64_t{c.width} * c.height));
    MovieFile file(path, c.width, c.height, c.scale, c.step);
    int64_t number = -5;
    for (const Pixels& pixels : frames) {
      const FramePixels view{pixels.data(), c.width * 4, c.width, c.height};
      file.Add(number++, view, file.Encode(view));
    }
    EXPECT_FALSE(fs::exists(path)) << "a movie without its end is seen";
    file.Publish();

    const Movie movie = Decoded(path);
    EXPECT_EQ(int64_t{movie.rate.num} * c.step, int64_t{movie.rate.den} * c.scale)
        << movie.rate.num << '/' << movie.rate.den;
    ASSERT_EQ(movie.frames.size(), frames.size()) << c.width;
    for (size_t i = 0; i < frames.size(); ++i) {
      ASSERT_EQ(movie.frames[i].size(), frames[i].size());
      EXPECT_EQ(std::memcmp(movie.frames[i].data(), frames[i].data(), frames[i].size() * 4), 0)
          << "frame " << i << " of " << c.width << " x " << c.height;
    }
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1);
}

TEST_F(MovieFileTest, LeavesNothingWhenItIsNotPublishedOrDoesNotFit) {
  const std::vector<Pixels> frames = SomeFrames(60, 1000);
  const auto addAll = [&frames](MovieFile& file) {
    for (const Pixels& pixels : frames) file.Add(0, {pixels.data(), 400, 100, 10}, "");
  };
  {
    MovieFile file(path, 100, 10, 30, 1);
    addAll(file);
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));

  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  for (const rlim_t limit : {20U, 5000U}) {
    const rlimit small{limit, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    try {
      MovieFile file(path, 100, 10, 30, 1);
      addAll(file);
      file.Publish();
      ADD_FAILURE() << "a movie was written into " << limit << " bytes";
    } catch (const JobFailure& failure) {
      const std::string message = failure.what();
      EXPECT_NE(message.find("a.mov: the bytes do not fit (File too large)"), std::string::npos)
          << message;
    }
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(fs::is_empty(folder.Path())) << limit;
  }
  std::signal(SIGXFSZ, handler);
}

}  // namespace
