// Catches a host that hands out a wrong time, point or world to a render, that overlooks a write
// beside the pixels, or that mixes up renders which run at the same time.
#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <limits>
#include <optional>
#include <thread>

#include "Pattern.h"
#include "workbench/Failure.h"
#include "workbench/host/HostCallbacks.h"
#include "workbench/host/HostSession.h"
#include "workbench/host/ParameterText.h"
#include "workbench/host/SuiteRegistry.h"

namespace {

constexpr size_t kDeed = 1;
constexpr size_t kSpot = 3;

std::string Joined(const std::vector<std::string>& rules) {
  std::string text;
  for (const std::string& rule : rules) text += rule + '\n';
  return text;
}

bool IsSame(const PF_Pixel8& a, const PF_Pixel8& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

class Render : public testing::Test {
 protected:
  Render() { Set(kSpot, "300,211"); }

  void Set(size_t parameter, const char* text) {
    SetFromText(instance, session.Parameters(), parameter, text);
  }
  CommandResult Draw(OutputWorld& world, A_long tick = 0, A_u_long downsample = 1) {
    return session.Host().Render(instance, {world, tick, downsample});
  }
  Comp comp;
  Layer& layer = comp.AddLayer("layer", nullptr);
  HostSession session{PATTERN_PLUGIN};
  EffectInstance& instance = session.AddInstance(layer);
};

void ExpectPattern(const OutputWorld& world, A_long tick, const PF_Point& spot,
                   A_u_long downsample) {
  int wrong = 0;
  for (A_long y = 0; y < world.Height(); ++y) {
    for (A_long x = 0; x < world.Width(); ++x) {
      const PF_Pixel8& pixel = world.Row(y)[static_cast<size_t>(x)];
      wrong += IsSame(pixel, PatternPixel(x, y, tick, spot, downsample)) ? 0 : 1;
    }
  }
  EXPECT_EQ(wrong, 0) << "of " << world.Width() << " x " << world.Height() << ", tick " << tick;
}

TEST_F(Render, GivesTheEffectTheTimeAndTheWorldAndPointsInItsPixels) {
  struct Case {
    int32_t width, height;
    A_long tick;
    A_u_long downsample;
    PF_Point spot;
  };
  const Case cases[] = {{0, 0, 0, 1, {}},
                        {1, 1, -1, 1, {300, 211}},
                        {31, 17, std::numeric_limits<A_long>::max(), 1, {300, 211}},
                        {320, 200, std::numeric_limits<A_long>::min(), 2, {150, 105}},
                        {5, 300, 12, 4, {75, 52}}};
  for (const Case& c : cases) {
    OutputWorld world(c.width, c.height);
    EXPECT_EQ(Joined(Draw(world, c.tick, c.downsample).broken), "") << c.width;
    ExpectPattern(world, c.tick, c.spot, c.downsample);
    EXPECT_GT(world.RowBytes(), c.width * 4);
  }
  EXPECT_EQ(ValueText(instance, session.Parameters(), kSpot), "300,211") << "the user's own value";
}

TEST_F(Render, IsToldOfEveryByteBesideThePixels) {
  const std::pair<const char*, const char*> cases[] = {
      {"Before", "Render: wrote outside the world: 1 byte(s) before its first row"},
      {"Rows before", "Render: wrote outside the world: 1 byte(s) before its first row"},
      {"Padding", "1 byte(s) behind the ends of rows, the last of them row 2"},
      {"Behind", "Render: wrote outside the world: 5 byte(s) behind its last row"},
      {"Record", "Render: changed the output world's record"}};
  OutputWorld world(20, 10);
  for (const auto& [deed, says] : cases) {
    Set(kDeed, deed);
    const std::string broken = Joined(Draw(world).broken);
    EXPECT_NE(broken.find(says), std::string::npos) << deed << ": " << broken;
    EXPECT_EQ(std::count(broken.begin(), broken.end(), '\n'), 1) << broken;
    Set(kDeed, "Pattern");
    EXPECT_EQ(Joined(Draw(world).broken), "") << "behind " << deed;
    ExpectPattern(world, 0, {300, 211}, 1);
  }
}

TEST_F(Render, OfAFrameOfTheCompTellsItsLayerTime) {
  using Limits = std::numeric_limits<int32_t>;
  struct Case {
    int32_t step = 1;
    int32_t layerStart = 0;
    int64_t frame = 0;
    std::optional<int32_t> tick;
  };
  const Case cases[] = {{1, 0, 0, 0},
                        {1001, 30030, 40, 10010},
                        {1001, 30030, -2, -32032},
                        {1, -5, Limits::max() - 5, Limits::max()},
                        {1, -5, Limits::max() - 4, std::nullopt},
                        {1, 7, int64_t{Limits::min()} + 6, std::nullopt},
                        {Limits::max(), Limits::max(), 2, Limits::max()},
                        {Limits::max(), 0, Limits::max(), std::nullopt},
                        {3, 0, std::numeric_limits<int64_t>::min(), std::nullopt}};
  OutputWorld world(4, 4);
  for (const Case& c : cases) {
    comp.timeStep = c.step;
    layer.startTick = c.layerStart;
    if (c.tick) {
      session.RenderFrame(instance, c.frame, world);
      ExpectPattern(world, *c.tick, {300, 211}, 1);
    } else {
      EXPECT_THROW(session.RenderFrame(instance, c.frame, world), JobFailure) << c.frame;
    }
  }
}

TEST_F(Render, MayRunOnSeveralThreadsThatHoldOneRecordAtTheSameTime) {
  constexpr int kThreads = 4;
  // Of renders that wait for another one, each thread has one: two would wait for themselves.
  for (const auto& [deed, frames] : {std::pair{"Meet another", 1}, {"Pattern", 25}}) {
    Set(kDeed, deed);
    std::deque<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&, thread, count = frames] {
        OutputWorld world(16, 8);
        for (A_long frame = 0; frame < count; ++frame) {
          const A_long tick = frame * kThreads + thread;
          EXPECT_EQ(Joined(Draw(world, tick).broken), "");
          ExpectPattern(world, tick, {300, 211}, 1);
        }
      });
    }
  }
}

class CallWithinRender : public Render {
 protected:
  CallWithinRender() { scope.output = &world; }

  PF_Err Fill(const PF_Pixel* color, const PF_Rect* rect, PF_EffectWorld* target) {
    return UtilityCallbacks()->fill(scope.EffectRef(), color, rect, target);
  }

  OutputWorld world{10, 6};
  CommandScope scope{session.Host(), &instance, PF_Cmd_RENDER, {}};
};

TEST_F(CallWithinRender, FillsTheRectangleAsFarAsItLiesInTheWorld) {
  constexpr A_long kFirst = std::numeric_limits<A_long>::min();
  constexpr A_long kLast = std::numeric_limits<A_long>::max();
  constexpr PF_Rect kRects[] = {
      {2, 1, 5, 4},  {0, 0, 10, 6}, {-3, -3, 1, 1}, {9, 5, 10, 6},  {kFirst, kFirst, kLast, kLast},
      {5, 1, 5, 4},  {5, 1, 2, 4},  {2, 4, 5, 1},   {10, 0, 12, 6}, {kLast, kLast, kFirst, kFirst},
      {0, 6, 10, 9}, {-5, 0, 0, 6}};
  const PF_Pixel color{1, 2, 3, 4};
  for (const PF_Rect& rect : kRects) {
    for (const PF_Pixel* given : {&color, static_cast<const PF_Pixel*>(nullptr)}) {
      const PF_Pixel ground{9, 9, 9, 9};
      ASSERT_EQ(Fill(&ground, nullptr, world.Record()), PF_Err_NONE);
      ASSERT_EQ(Fill(given, &rect, world.Record()), PF_Err_NONE);
      const PF_Pixel inside = given != nullptr ? color : PF_Pixel{0, 0, 0, 0};
      for (A_long y = 0; y < 6; ++y) {
        for (A_long x = 0; x < 10; ++x) {
          const bool isIn = x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
          ASSERT_TRUE(IsSame(world.Row(y)[static_cast<size_t>(x)], isIn ? inside : ground))
              << rect.left << ',' << rect.top << ' ' << rect.right << ',' << rect.bottom << " at "
              << x << ',' << y;
        }
      }
    }
  }
  EXPECT_EQ(Joined(world.TakeDamage()), "");
  EXPECT_EQ(Joined(scope.BrokenRules()), "");
}

TEST_F(CallWithinRender, MayFailToFillLikeAnyCallAndFillsNoForeignWorld) {
  CommandScope failing(session.Host(), &instance, PF_Cmd_RENDER, {2, PF_Err_OUT_OF_MEMORY});
  failing.output = &world;
  EXPECT_EQ(Fill(nullptr, nullptr, world.Record()), PF_Err_NONE);
  const PF_Pixel color{1, 2, 3, 4};
  EXPECT_EQ(Fill(&color, nullptr, world.Record()), PF_Err_OUT_OF_MEMORY);
  EXPECT_TRUE(IsSame(world.Row(5)[9], {0, 0, 0, 0}));

  PF_EffectWorld copy = *world.Record();
  EXPECT_NE(Fill(&color, nullptr, &copy), PF_Err_NONE);
  EXPECT_NE(Fill(&color, nullptr, nullptr), PF_Err_NONE);
  failing.output = nullptr;
  EXPECT_NE(Fill(&color, nullptr, world.Record()), PF_Err_NONE);
  EXPECT_EQ(failing.BrokenRules().size(), 3U) << Joined(failing.BrokenRules());
}

TEST_F(CallWithinRender, ThatWouldChangeTheProjectIsRefused) {
  PF_ParamDef def{};
  PF_CustomUIInfo info{};
  AEGP_AddKeyframesInfoH batch = nullptr;
  EXPECT_NE(ParamUtilsSuite().PF_UpdateParamUI(scope.EffectRef(), 1, &def), PF_Err_NONE);
  EXPECT_NE(InteractCallbacks().register_ui(scope.EffectRef(), &info), PF_Err_NONE);
  EXPECT_NE(KeyframeSuite().AEGP_StartAddKeyframes(nullptr, &batch), PF_Err_NONE);
  const std::string broken = Joined(scope.BrokenRules());
  EXPECT_EQ(broken,
            "PF_UpdateParamUI: a render may not change the project\n"
            "register_ui: a render may not change the project\n"
            "AEGP_StartAddKeyframes: a render may not change the project\n");
}

}  // namespace
