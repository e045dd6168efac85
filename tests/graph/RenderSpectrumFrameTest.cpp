// Catches a frame whose steps run in another order, an error that draws, remembers or leaves
// something locked, and renders that overlap or allocate.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <span>
#include <thread>
#include <vector>

#include "AllocationCount.h"
#include "GraphHost.h"
#include "PlainGraph.h"
#include "analysis/BandLevels.h"
#include "analysis/RangeEvaluation.h"

namespace {

constexpr WorldShape kShape = {320, 180, 8};
using RecordBytes = std::array<uint8_t, sizeof(SequenceRecord)>;

// The picture of the host's frame, worked out anew from its sound and parameters.
GuardedWorld ExpectedPicture(GraphHost& host, const std::array<double, 3>& held) {
  GraphInputs in;
  in.levels.fill(1.0);
  ComputeBandLevels(&host.in_data, host.params, host.in_data.current_time, host.in_data.time_scale,
                    in.levels);
  ComputeRangeGeometry(host.params, kShape.width, kShape.height, in.geometry);
  EvaluateRanges(&host.in_data, host.params, in.levels, in.raw, kShape.width, kShape.height,
                 nullptr);
  in.held = held;
  in.colorMap = host.record.gradient;
  in.settings = ReadGraphSettings(host.params);
  GuardedWorld expected(kShape, true, 1);
  for (int32_t y = 0; y < kShape.height; ++y) {
    std::fill_n(expected.At(0, y), 4 * kShape.width, uint8_t{0});
  }
  PlainGraph(expected).Draw(in);
  return expected;
}

TEST(RenderSpectrumFrame, ALoudFrameThenSilenceShowsTheHeldValuesFalling) {
  GraphHost host(kShape);
  host.samples = MakeNoise(6615, 0);
  ASSERT_EQ(host.Render(1000), PF_Err_NONE);
  const std::array<double, 3> loud = {host.record.heldValue[0], host.record.heldValue[1],
                                      host.record.heldValue[2]};
  for (const double held : loud) EXPECT_GT(held, 0.2);
  GuardedWorld expected = ExpectedPicture(host, loud);
  EXPECT_TRUE(SamePicture(host.picture, expected));

  host.answers.hasSound = false;
  for (int frame = 1; frame <= 3; ++frame) {
    ASSERT_EQ(host.Render(1000 + 4 * frame), PF_Err_NONE);
    const std::array<double, 3> held = {0.0, std::max(0.0, loud[1] - 0.04 * frame),
                                        loud[2] * std::pow(0.05, 0.04 * frame)};
    for (size_t range = 0; range < 3; ++range) {
      EXPECT_NEAR(host.record.heldValue[range], held[range], 1e-12) << frame << ", " << range;
    }
    EXPECT_EQ(host.record.lastRenderTime, 1000 + 4 * frame);
    expected = ExpectedPicture(host, held);
    EXPECT_TRUE(SamePicture(host.picture, expected)) << frame;
  }
  ASSERT_EQ(host.Render(1100), PF_Err_NONE);
  for (const double held : host.record.heldValue) EXPECT_EQ(held, 0.0);
  EXPECT_EQ(host.handle.locks, 0);
}

TEST(RenderSpectrumFrame, WithAllElementsOffTheFrameIsTransparentAndRemembersAllTheSame) {
  GraphHost host(kShape);
  host.samples = MakeNoise(6615, 0);
  for (const int32_t element :
       {kLogarithmicScale, kShowSpectrum, kShowSelectionRanges, kShowOutput, kShowColormap}) {
    host.params.At(element).bd.value = 0;
  }
  ASSERT_EQ(host.Render(0), PF_Err_NONE);
  for (int32_t y = 0; y < kShape.height; ++y) {
    const std::span row(host.picture.At(0, y), 4 * size_t{kShape.width});
    EXPECT_EQ(std::ranges::count(row, 0), std::ssize(row)) << y;
  }
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
  };
  for (const RefusalCase& c : kCases) {
    GraphHost host(kShape);
    host.samples = MakeNoise(6615, 0);
    const GuardedWorld picture = host.picture;
    const auto record = std::bit_cast<RecordBytes>(host.record);
    c.refuse(host);
    EXPECT_EQ(host.Render(1000), c.expected) << c.what;
    EXPECT_EQ(host.picture.bytes, picture.bytes) << c.what;
    EXPECT_EQ(std::bit_cast<RecordBytes>(host.record), record) << c.what;
    EXPECT_EQ(host.handle.locks, 0) << c.what;
    EXPECT_EQ(host.checkins, c.checkins) << c.what;
  }
}

TEST(RenderSpectrumFrame, ACallWithoutOutputOrParametersIsRefused) {
  GraphHost host(kShape);
  const PluginHost_AE_Impl noOutput(&host.in_data, &host.out_data, host.pointers.data(), nullptr);
  EXPECT_EQ(RenderSpectrumFrame(noOutput), PF_Err_BAD_CALLBACK_PARAM);
  const PluginHost_AE_Impl noParameters(&host.in_data, &host.out_data, nullptr, &host.output);
  EXPECT_EQ(RenderSpectrumFrame(noParameters), PF_Err_BAD_CALLBACK_PARAM);
}

TEST(RenderSpectrumFrame, AThrownFailureUnlocksTheRecordAndLetsTheNextFrameIn) {
  GraphHost host(kShape);
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
  constexpr WorldShape kShapes[] = {{0, 0, 0},   {1, 1, 0},    {1, 4000, 0},
                                    {31, 17, 4}, {20, 20, 64}, {8192, 2, 0}};
  for (const WorldShape& shape : kShapes) {
    GraphHost host(shape);
    host.samples = MakeNoise(6615, 0);
    std::ranges::fill(host.record.heldValue, std::numeric_limits<double>::infinity());
    std::ranges::fill(host.record.gradient.colorMapGreen, std::nanf(""));
    for (const int32_t time : {kMin, -1, 0, kMax}) {
      host.in_data.time_scale = time == 0 ? 0 : 100;
      host.in_data.time_step = time;
      host.params.At(kQuantize).bd.value = 1;
      host.params.At(kQuantizeValue).sd.value = time;
      host.record.lastRenderTime = static_cast<int32_t>(static_cast<uint32_t>(kMin) * 2U);
      const std::vector<uint8_t> before = host.picture.bytes;
      EXPECT_EQ(host.Render(time), PF_Err_NONE) << shape.width << ", " << time;
      const auto guard = static_cast<std::ptrdiff_t>(GuardedWorld::kGuardBytes);
      EXPECT_TRUE(std::equal(before.begin(), before.begin() + guard, host.picture.bytes.begin()));
      EXPECT_TRUE(std::equal(before.end() - guard, before.end(), host.picture.bytes.end() - guard));
    }
  }
}

// The hosts count their calls without a lock of their own, and two threads share each of them: the
// thread sanitizer hears of renders that overlap.
TEST(RenderSpectrumFrame, FramesOfAllInstancesWaitForOneAnother) {
  constexpr int kFrames = 25;
  GraphHost hosts[2] = {GraphHost(kShape), GraphHost(kShape)};
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
      for (int frame = 0; frame < kFrames; ++frame) {
        const PluginHost_AE_Impl facade(&host.in_data, &host.out_data, host.pointers.data(),
                                        &host.output);
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

TEST(RenderSpectrumFrame, AllocatesNothing) {
  GraphHost host(kShape);
  host.samples = MakeNoise(6615, 0);
  host.params.At(kQuantize).bd.value = 1;
  const int64_t before = AllocationCount();
  const PF_Err error = host.Render(1000);
  EXPECT_EQ(AllocationCount() - before, 0);
  EXPECT_EQ(error, PF_Err_NONE);
}

}  // namespace
