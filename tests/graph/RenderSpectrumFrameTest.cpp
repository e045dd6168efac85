// Catches a frame whose steps run in another order, an error that draws, remembers or leaves
// something locked, and renders that overlap or allocate.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <thread>
#include <vector>

#include "AllocationCount.h"
#include "GraphHost.h"
#include "GraphLot.h"
#include "analysis/BandLevels.h"
#include "analysis/RangeEvaluation.h"

namespace {

constexpr int32_t kWidth = 320;
constexpr int32_t kHeight = 180;
using RecordBytes = std::array<uint8_t, sizeof(SequenceRecord)>;

// The picture of the host's frame, put together from its sound and parameters.
Sheet ExpectedPicture(GraphHost& host, const std::array<double, 3>& held) {
  GraphInputs in;
  in.levels.fill(1.0);
  ComputeBandLevels(&host.in_data, host.params, host.in_data.current_time, host.in_data.time_scale,
                    in.levels);
  ComputeRangeGeometry(host.params, kWidth, kHeight, in.geometry);
  EvaluateRanges(&host.in_data, host.params, in.levels, in.raw, kWidth, kHeight, nullptr);
  in.held = held;
  in.settings = ReadGraphSettings(host.params);
  GraphHost expected(kWidth, kHeight);
  expected.FillWorld(PF_Pixel{});
  DrawGraph(expected.output, MakeGraphLayout(kWidth, kHeight), in);
  return expected.picture;
}

TEST(RenderSpectrumFrame, ALoudFrameThenSilenceShowsTheHeldValuesFalling) {
  GraphHost host(kWidth, kHeight);
  host.samples = MakeNoise(6615, 0);
  ASSERT_EQ(host.Render(1000), PF_Err_NONE);
  const std::array<double, 3> loud = {host.record.heldValue[0], host.record.heldValue[1],
                                      host.record.heldValue[2]};
  for (const double held : loud) EXPECT_GT(held, 0.2);
  EXPECT_EQ(host.picture.pixels, ExpectedPicture(host, loud).pixels);

  host.answers.hasSound = false;
  for (int frame = 1; frame <= 3; ++frame) {
    ASSERT_EQ(host.Render(1000 + 4 * frame), PF_Err_NONE);
    const std::array<double, 3> held = {0.0, std::max(0.0, loud[1] - 0.04 * frame),
                                        loud[2] * std::pow(0.05, 0.04 * frame)};
    for (size_t range = 0; range < 3; ++range) {
      EXPECT_NEAR(host.record.heldValue[range], held[range], 1e-12) << frame << ", " << range;
    }
    EXPECT_EQ(host.record.lastRenderTime, 1000 + 4 * frame);
    EXPECT_EQ(host.picture.pixels, ExpectedPicture(host, held).pixels) << frame;
  }
  ASSERT_EQ(host.Render(1100), PF_Err_NONE);
  for (const double held : host.record.heldValue) EXPECT_EQ(held, 0.0);
  EXPECT_EQ(host.handle.locks, 0);
}

TEST(RenderSpectrumFrame, WithAllElementsOffTheFrameIsTransparentAndRemembersAllTheSame) {
  GraphHost host(kWidth, kHeight);
  host.samples = MakeNoise(6615, 0);
  for (const int32_t element :
       {kLogarithmicScale, kShowSpectrum, kShowSelectionRanges, kShowOutput, kShowColormap}) {
    host.params.At(element).bd.value = 0;
  }
  ASSERT_EQ(host.Render(0), PF_Err_NONE);
  GraphHost clear(kWidth, kHeight);
  clear.FillWorld(PF_Pixel{});
  EXPECT_EQ(host.picture.pixels, clear.picture.pixels);
  EXPECT_GT(host.record.heldValue[0], 0.2);
}

struct RefusalCase {
  const char* what;
  std::function<void(GraphHost&)> refuse;
  PF_Err expected;
  int checkins;
};

TEST(RenderSpectrumFrame, AnErrorLeavesPictureAndMemoryUntouchedAndNothingLocked) {
  const RefusalCase kCases[] = {
      {"check-out", [](GraphHost& h) { h.answers.checkoutError = 1234; }, 1234, 0},
      {"fetch", [](GraphHost& h) { h.answers.fetchError = 1235; }, 1235, 1},
      {"fill", [](GraphHost& h) { h.fillError = 1236; }, 1236, 1},
      {"lock", [](GraphHost& h) { h.handle.canBeLocked = false; }, PF_Err_OUT_OF_MEMORY, 0},
      {"small record", [](GraphHost& h) { h.handle.size = sizeof(SequenceRecord) - 1; },
       PF_Err_INTERNAL_STRUCT_DAMAGED, 0},
      {"no record", [](GraphHost& h) { h.in_data.sequence_data = nullptr; },
       PF_Err_INTERNAL_STRUCT_DAMAGED, 0},
      {"no output", [](GraphHost& h) { h.givenOutput = nullptr; }, PF_Err_BAD_CALLBACK_PARAM, 0},
      {"no parameters", [](GraphHost& h) { h.givenParams = nullptr; }, PF_Err_BAD_CALLBACK_PARAM,
       0},
  };
  for (const RefusalCase& c : kCases) {
    GraphHost host(kWidth, kHeight);
    host.samples = MakeNoise(6615, 0);
    const auto record = std::bit_cast<RecordBytes>(host.record);
    c.refuse(host);
    EXPECT_EQ(host.Render(1000), c.expected) << c.what;
    EXPECT_EQ(host.picture.pixels, GraphHost(kWidth, kHeight).picture.pixels) << c.what;
    EXPECT_EQ(std::bit_cast<RecordBytes>(host.record), record) << c.what;
    EXPECT_EQ(host.handle.locks, 0) << c.what;
    EXPECT_EQ(host.checkins, c.checkins) << c.what;
  }
}

TEST(RenderSpectrumFrame, AThrownFailureUnlocksTheRecordAndLetsTheNextFrameIn) {
  GraphHost host(kWidth, kHeight);
  host.samples = MakeNoise(6615, 0);
  ASSERT_EQ(host.Render(1000), PF_Err_NONE);
  const double held = host.record.heldValue[1];
  host.utils.ansi.pow = [](double, double) -> double { throw 99; };
  EXPECT_THROW(host.Render(1004), int);
  EXPECT_EQ(host.handle.locks, 0);
  EXPECT_EQ(host.record.lastRenderTime, 1000);
  EXPECT_EQ(host.record.heldValue[1], held);
  host.utils.ansi.pow = [](double x, double y) { return std::pow(x, y); };
  EXPECT_EQ(host.Render(1004), PF_Err_NONE);
}

TEST(RenderSpectrumFrame, AnySizeTimeAndRecordIsRendered) {
  constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
  for (const auto& [width, height] : {std::pair{0, 0}, {1, 1}, {1, 4000}, {31, 17}, {8192, 2}}) {
    for (const int32_t time : {kMin, -1, 0, kMax}) {
      GraphHost host(width, height);
      host.samples = MakeNoise(6615, 0);
      std::ranges::fill(host.record.heldValue, std::numeric_limits<double>::infinity());
      std::ranges::fill(host.record.gradient.colorMapGreen, std::nanf(""));
      host.in_data.time_scale = time == 0 ? 0 : 100;
      host.in_data.time_step = time;
      host.params.At(kQuantize).bd.value = 1;
      host.params.At(kQuantizeValue).sd.value = time;
      host.record.lastRenderTime = 0;
      EXPECT_EQ(host.Render(time), PF_Err_NONE) << width << ", " << time;
      host.FillWorld(kGround);
      EXPECT_EQ(host.picture.pixels, GraphHost(width, height).picture.pixels) << width;
    }
  }
}

// The hosts count their calls without a lock of their own, and two threads share each of them: the
// thread sanitizer hears of renders that overlap.
TEST(RenderSpectrumFrame, FramesOfAllInstancesWaitForOneAnother) {
  constexpr int kFrames = 25;
  GraphHost hosts[2] = {{kWidth, kHeight}, {kWidth, kHeight}};
  for (GraphHost& host : hosts) host.samples = MakeNoise(600, 0);
  static int inside;
  static int most;
  inside = most = 0;
  for (GraphHost& host : hosts) {
    host.utils.ansi.sqrt = [](double x) {
      most = std::max(most, ++inside);
      std::this_thread::yield();
      --inside;
      return std::sqrt(x);
    };
  }
  std::vector<std::thread> threads;
  for (size_t n = 0; n < 4; ++n) {
    threads.emplace_back([&host = hosts[n % 2]] {
      const PluginHost_AE_Impl facade(&host.in_data, &host.out_data, host.givenParams,
                                      host.givenOutput);
      for (int frame = 0; frame < kFrames; ++frame) {
        EXPECT_EQ(RenderSpectrumFrame(facade), PF_Err_NONE);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(most, 1);
  for (const GraphHost& host : hosts) {
    EXPECT_EQ(host.fetches, 2 * kFrames);
    EXPECT_EQ(host.handle.locks, 0);
  }
}

TEST(RenderSpectrumFrame, AFrameThatAFrameCausesDoesNotWaitForIt) {
  GraphHost outer(kWidth, kHeight);
  static GraphHost inner(kWidth, kHeight);
  outer.samples = inner.samples = MakeNoise(600, 0);
  outer.utils.ansi.sqrt = [](double x) {
    EXPECT_EQ(inner.Render(1000), PF_Err_NONE);
    return std::sqrt(x);
  };
  ASSERT_EQ(outer.Render(1000), PF_Err_NONE);
  EXPECT_EQ(outer.picture.pixels, inner.picture.pixels);
  EXPECT_EQ(outer.handle.locks + inner.handle.locks, 0);
}

TEST(RenderSpectrumFrame, AllocatesNothing) {
  GraphHost host(kWidth, kHeight);
  host.samples = MakeNoise(6615, 0);
  host.params.At(kQuantize).bd.value = 1;
  const int64_t before = AllocationCount();
  const PF_Err error = host.Render(1000);
  EXPECT_EQ(AllocationCount() - before, 0);
  EXPECT_EQ(error, PF_Err_NONE);
}

}  // namespace
