// Catches frames that show other values than Apply writes, and renders that race for the record.
#include <array>
#include <thread>

#include "Instance.h"

namespace {

constexpr int32_t kWidth = 640;
constexpr int32_t kHeight = 360;
constexpr int32_t kGraphTop = 36;
constexpr int32_t kGraphBottom = 324;
constexpr int32_t kFirstOutputColumn = 512;
constexpr int32_t kTicksPerFrame = 100;

// A comp whose frames stand on the very ticks of a run's keyframes.
std::unique_ptr<Instance> InSmallFrames(double seconds) {
  auto instance = std::make_unique<Instance>(seconds);
  instance->comp.width = kWidth;
  instance->comp.height = kHeight;
  instance->comp.timeScale = 3000;
  instance->comp.timeStep = kTicksPerFrame;
  instance->comp.workAreaDuration = static_cast<int32_t>(std::lround(seconds * 3000));
  instance->SetUpSequence();
  instance->Set("Range 1 Corner 1", "200,36");
  instance->Set("Range 1 Corner 2", "280,300");
  return instance;
}

// How many rows of the first output bar are lit, from the bottom of the graph up.
int32_t LitRows(const OutputWorld& world) {
  const int32_t column = kFirstOutputColumn + 3;
  int32_t rows = 0;
  while (rows < kGraphBottom - kGraphTop &&
         world.Row(kGraphBottom - rows)[static_cast<size_t>(column)].green == 255) {
    ++rows;
  }
  return rows;
}

TEST(Render, ShowsTheValuesThatApplyWrites) {
  const auto instance = InSmallFrames(2.0);
  ExpectClean(instance->PressAndRelease());
  OutputWorld world(kWidth, kHeight);
  int32_t seen = 0;
  for (const Keyframe& key : instance->Output(1)) {
    ExpectClean(
        instance->host.Render(*instance->effect, {.world = world, .layerTick = key.time.value}));
    const auto expected = static_cast<int32_t>((kGraphBottom - kGraphTop) * (key.value / 100.0));
    EXPECT_EQ(LitRows(world), expected) << key.time.value;
    if (expected > 50) ++seen;
  }
  EXPECT_GT(seen, 20) << "the sound fills the bar in many frames";
}

TEST(Render, FromFourThreadsOnTwoInstancesGivesTheFramesOfOne) {
  const std::array instances = {InSmallFrames(1.0), InSmallFrames(1.0)};
  std::array<std::vector<int32_t>, 4> lit;
  std::vector<std::thread> threads;
  for (size_t n = 0; n < lit.size(); ++n) {
    threads.emplace_back([&, n] {
      Instance& instance = *instances[n % 2];
      OutputWorld world(kWidth, kHeight);
      for (int32_t frame = 0; frame < 20; ++frame) {
        const CommandResult result = instance.host.Render(
            *instance.effect, {.world = world, .layerTick = frame * kTicksPerFrame});
        lit[n].push_back(result.broken.empty() ? LitRows(world) : -1);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const auto& rows : lit) {
    EXPECT_EQ(rows, lit[0]);
    EXPECT_GT(rows[5], 50);
  }
}

}  // namespace
