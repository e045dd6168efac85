// Catches a picture that differs in any byte from the plain one, a write outside the world, and a
// layout that isn't the published one.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "GuardedWorld.h"
#include "PlainGraph.h"
#include "RandomGraph.h"
#include "graph/GraphLayout.h"
#include "graph/OutputBars.h"
#include "graph/SpectrumGraph.h"

namespace {

void DrawByLibrary(GuardedWorld& picture, const GraphInputs& in) {
  const OutputWorld world = picture.World();
  const GraphLayout layout = MakeGraphLayout(picture.shape.width, picture.shape.height);
  DrawSpectrumGraph(world, layout, in.settings, in.colorMap, in.levels, in.geometry);
  if (in.settings.output) {
    DrawOutputBars(world, layout, in.settings.active, in.raw, in.held);
  }
}

// Draws one picture both ways, on a clear world or on noise.
bool ExpectPlainPicture(WorldShape shape, uint32_t seed, bool hostile) {
  SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << shape.width << " x " << shape.height
                                  << " + " << shape.spareBytes << (hostile ? ", hostile" : ""));
  RandomGraph random(seed);
  const GraphInputs inputs =
      hostile ? random.Hostile(shape.width, shape.height) : random.Tame(shape.width, shape.height);
  const bool noisy = random.Flips();
  GuardedWorld drawn(shape, noisy, seed);
  GuardedWorld expected = drawn;
  DrawByLibrary(drawn, inputs);
  PlainGraph(expected).Draw(inputs);
  return SamePicture(drawn, expected);
}

TEST(GraphPicture, IsThePlainOneInEveryByte) {
  struct SizeCase {
    WorldShape shape;
    uint32_t pictures = 0;
  };
  constexpr SizeCase kSizes[] = {
      {{1920, 1080, 0}, 4}, {{640, 360, 0}, 30}, {{641, 359, 3}, 30}, {{160, 90, 64}, 200},
      {{31, 17, 1}, 200},   {{20, 20, 0}, 200},  {{1, 1, 0}, 20},     {{0, 0, 0}, 2},
      {{0, 7, 8}, 2},       {{7, 0, 0}, 2},      {{1, 4000, 4}, 40},  {{4000, 1, 4}, 40},
      {{2, 300, 0}, 40},    {{57, 2000, 5}, 40}, {{2048, 12, 0}, 40},
  };
  for (const auto& [shape, pictures] : kSizes) {
    for (uint32_t seed = 1; seed <= pictures; ++seed) {
      if (!ExpectPlainPicture(shape, seed, false)) return;
      if (!ExpectPlainPicture(shape, seed, true)) return;
    }
  }
}

TEST(GraphPicture, IsThePlainOneAtAnySmallSize) {
  for (uint32_t seed = 1000; seed < 3000; ++seed) {
    RandomGraph random(seed);
    const WorldShape shape = {random.Whole(0, 130), random.Whole(0, 130), random.Whole(0, 9)};
    if (!ExpectPlainPicture(shape, seed, random.Flips())) return;
  }
}

TEST(GraphPicture, NothingIsDrawnOnAWorldThatDoesNotHoldItsRows) {
  GuardedWorld sound({64, 48, 0}, true, 1);
  const GuardedWorld before = sound;
  const PF_LayerDef good = sound.AsOutput();
  std::vector<PF_LayerDef> worlds(7, good);
  worlds[0].data = nullptr;
  worlds[1].rowbytes = 4 * 64 - 1;
  worlds[2].rowbytes = -4 * 64;
  worlds[3].width = -64;
  worlds[4].height = -48;
  worlds[5].width = std::numeric_limits<A_long>::max();
  worlds[6].width = worlds[6].height = std::numeric_limits<A_long>::min();
  for (const PF_LayerDef& world : worlds) {
    GraphInputs in = RandomGraph(1).Tame(64, 48);
    in.settings = {.quantize = true, .active = {true, true, true}};
    in.levels.fill(1.0);
    const GraphLayout layout = MakeGraphLayout(world.width, world.height);
    DrawSpectrumGraph(MakeOutputWorld(world), layout, in.settings, in.colorMap, in.levels,
                      in.geometry);
    DrawOutputBars(MakeOutputWorld(world), layout, in.settings.active, in.raw, in.held);
  }
  EXPECT_EQ(sound.bytes, before.bytes);
}

TEST(GraphPicture, ALayoutOfAnotherSizeIsDrawnAsFarAsTheWorldGoes) {
  constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
  constexpr int32_t kSizes[] = {kMin, -100, 0, 10, 60, 200, 5000, kMax};
  for (uint32_t i = 0; i < 64; ++i) {
    const int32_t width = kSizes[i % 8], height = kSizes[i / 8];
    SCOPED_TRACE(testing::Message() << "layout of " << width << " x " << height);
    const GraphInputs in = RandomGraph(i).Hostile(64, 48);
    GuardedWorld world({64, 48, 8}, true, 1);
    GuardedWorld before = world;
    const GraphLayout layout = MakeGraphLayout(width, height);
    DrawSpectrumGraph(world.World(), layout, in.settings, in.colorMap, in.levels, in.geometry);
    DrawOutputBars(world.World(), layout, in.settings.active, in.raw, in.held);
    for (int32_t y = 0; y < 48; ++y) std::copy_n(before.At(0, y), 4 * 64, world.At(0, y));
    EXPECT_EQ(world.bytes, before.bytes);
  }
}

// A frame of 1920 x 1080 with all bars at full scale.
struct FullFrame {
  GraphInputs in;
  GuardedWorld picture{{1920, 1080, 0}, false, 1};

  FullFrame() {
    InitRecord(in.colorMap);
    in.levels.fill(1.0);
  }
  void Draw() { DrawByLibrary(picture, in); }
  std::vector<int> RowsWhere(int x, bool (*holds)(PF_Pixel)) {
    std::vector<int> rows;
    for (int y = 0; y < 1080; ++y) {
      if (holds(picture.Pixel(x, y))) rows.push_back(y);
    }
    return rows;
  }
  std::vector<int> ColumnsWhere(int y, bool (*holds)(PF_Pixel)) {
    std::vector<int> columns;
    for (int x = 0; x < 1920; ++x) {
      if (holds(picture.Pixel(x, y))) columns.push_back(x);
    }
    return columns;
  }
};

std::vector<int> Numbers(int first, int last) {
  std::vector<int> numbers;
  for (int n = first; n <= last; ++n) numbers.push_back(n);
  return numbers;
}

TEST(FrameOf1080Rows, GridLinesStandWhereTheyArePublished) {
  FullFrame frame;
  frame.in.settings.spectrum = frame.in.settings.output = false;
  frame.Draw();
  const auto isBlue = [](PF_Pixel p) {
    return p.alpha == 255 && p.red == 0 && p.green == 0 && p.blue == 255;
  };
  EXPECT_EQ(frame.RowsWhere(1500, isBlue), (std::vector<int>{108, 110, 113, 117, 123, 133, 148, 170,
                                                             204, 255, 331, 446, 618, 877, 972}));
  EXPECT_EQ(frame.ColumnsWhere(618, isBlue), Numbers(96, 1824));
  EXPECT_EQ(frame.ColumnsWhere(500, isBlue), (std::vector<int>{192, 1344}));
  EXPECT_EQ(frame.RowsWhere(1344, isBlue), Numbers(108, 972));
}

TEST(FrameOf1080Rows, BarsGapsAndColoursStandWhereTheyArePublished) {
  FullFrame frame;
  GraphSettings& settings = frame.in.settings;
  settings.logarithmicScale = false;
  settings.output = false;
  settings.quantize = true;
  settings.gradient = kGradientVertical;
  frame.in.levels.fill(0.0);
  frame.in.levels[0] = 1.0;
  frame.in.levels[31] = 0.5;
  frame.Draw();
  const auto isDrawn = [](PF_Pixel p) { return p.alpha == 255; };
  EXPECT_EQ(frame.ColumnsWhere(960, isDrawn).front(), 196);
  std::vector<int> columns = Numbers(196, 227);
  for (const int x : Numbers(1312, 1343)) columns.push_back(x);
  EXPECT_EQ(frame.ColumnsWhere(960, isDrawn), columns);
  // 20 segments of 43 rows, each without its lowest 4: 860 rows, and 432 are nearest to 10 of 43.
  std::vector<int> rows;
  for (int y = 972 - 860 + 1; y <= 972; ++y) {
    if ((972 - y) % 43 >= 4) rows.push_back(y);
  }
  EXPECT_EQ(frame.RowsWhere(200, isDrawn), rows);
  EXPECT_EQ(frame.RowsWhere(1320, isDrawn).front(), 972 - 430 + 1);
  // The map's left end is at the bottom: red there, green in the middle.
  EXPECT_EQ(TextOf(frame.picture.Pixel(200, 968)), "255 255 0 0");
  EXPECT_EQ(TextOf(frame.picture.Pixel(200, 544)), "255 5 255 0");
}

TEST(FrameOf1080Rows, ABarThatRisesPastTheTopKeepsTheLastColour) {
  FullFrame frame;
  frame.in.settings.quantize = true;
  frame.in.settings.quantizeValue = 28;  // 30 rows each, and 864 rows are nearest to 29 of them
  frame.in.settings.gradient = kGradientVertical;
  frame.in.settings.logarithmicScale = false;
  frame.Draw();
  for (int y = 103; y < 108; ++y) EXPECT_EQ(TextOf(frame.picture.Pixel(300, y)), "255 0 0 255");
  EXPECT_EQ(TextOf(frame.picture.Pixel(300, 102)), "0 0 0 0");
}

TEST(FrameOf1080Rows, OutputBarsShowValueTrackAndHold) {
  FullFrame frame;
  frame.in.settings.logarithmicScale = false;
  frame.in.settings.spectrum = false;
  frame.in.settings.active = {true, false, true};
  frame.in.raw = {0.25, 0.5, 1.0};
  frame.in.held = {0.5, 0.75, 1.0};
  frame.in.geometry.bands.fill({-1, 0});  // no outlines
  frame.Draw();
  const auto isLit = [](PF_Pixel p) { return p.green == 255; };
  const auto isTrack = [](PF_Pixel p) { return p.green == 100; };
  std::vector<int> lit = Numbers(972 - 216 + 1, 972);
  lit.insert(lit.begin(), 972 - 432);
  EXPECT_EQ(frame.RowsWhere(1540, isLit), lit);
  EXPECT_EQ(frame.RowsWhere(1540, isTrack).size(), 972 - 216 - 108);
  EXPECT_EQ(frame.RowsWhere(1760, isTrack), std::vector<int>{108});
  std::vector<int> columns = Numbers(1536, 1571);
  for (const int x : Numbers(1728, 1763)) columns.push_back(x);
  EXPECT_EQ(frame.ColumnsWhere(960, isLit), columns);
}

}  // namespace
