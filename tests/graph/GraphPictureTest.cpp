// Catches a picture that differs in any byte from the expected one, a write outside the world, and
// a layout that isn't the published one.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>

#include "GraphLot.h"
#include "Sheet.h"

namespace {

struct Place {
  int32_t x = 0, y = 0, width = 0, height = 0;
};

// Every other place is cleared first, as a frame is; on the others all that is drawn over shows.
void DrawOnSheet(Sheet& sheet, const Place& place, GraphLot& lot, bool isHostile) {
  const auto [x, y, width, height] = place;
  const bool isCleared = lot.Whole(0, 1) == 1;
  for (int32_t row = 0; isCleared && row < height; ++row) {
    std::fill_n(&sheet.At(x, y + row), width, PF_Pixel{});
  }
  const GraphInputs inputs = isHostile ? lot.Hostile(width, height) : lot.Tame(width, height);
  DrawGraph(sheet.Part(x, y, width, height), MakeGraphLayout(width, height), inputs);
}

TEST(GraphPicture, OfAnySizeIsTheExpectedOneInEveryByte) {
  constexpr Place kLarge[] = {{10, 10, 640, 360},  {660, 10, 641, 359}, {10, 380, 1290, 12},
                              {10, 400, 1290, 1},  {1310, 10, 1, 780},  {1320, 10, 2, 300},
                              {1330, 10, 57, 780}, {10, 410, 300, 380}, {320, 410, 980, 380}};
  for (const bool isHostile : {false, true}) {
    GraphLot lot(isHostile ? 2 : 1);
    Sheet sheet(1400, 1600);
    for (const Place& place : kLarge) DrawOnSheet(sheet, place, lot, isHostile);
    for (int32_t i = 0; i < 120; ++i) {
      const Place place = {i % 12 * 116, 800 + i / 12 * 80, lot.Whole(0, 112), lot.Whole(0, 78)};
      DrawOnSheet(sheet, place, lot, isHostile);
    }
    ExpectPicture(sheet, isHostile ? "hostile.png" : "tame.png");
  }
}

TEST(GraphPicture, NothingIsDrawnOnAWorldThatDoesNotHoldItsRows) {
  Sheet sheet(64, 48);
  const PF_LayerDef good = sheet.Part(0, 0, 64, 48);
  std::vector<PF_LayerDef> worlds(7, good);
  worlds[0].data = nullptr;
  worlds[1].rowbytes = 4 * 64 - 1;
  worlds[2].rowbytes = -4 * 64;
  worlds[3].width = -64;
  worlds[4].height = -48;
  worlds[5].width = std::numeric_limits<A_long>::max();
  worlds[6].width = worlds[6].height = std::numeric_limits<A_long>::min();
  GraphInputs in = GraphLot(1).Tame(64, 48);
  in.settings = {.quantize = true, .active = {true, true, true}};
  in.levels.fill(1.0);
  for (const PF_LayerDef& world : worlds) {
    DrawGraph(world, MakeGraphLayout(world.width, world.height), in);
  }
  EXPECT_EQ(sheet.pixels, Sheet(64, 48).pixels);
}

TEST(GraphPicture, ALayoutOfAnotherSizeIsDrawnAsFarAsTheWorldGoes) {
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  constexpr int32_t kSizes[] = {-kMost, -100, 0, 10, 60, 200, 5000, kMost};
  for (uint32_t i = 0; i < 64; ++i) {
    Sheet sheet(160, 130);
    DrawGraph(sheet.Part(80, 40, 64, 48), MakeGraphLayout(kSizes[i % 8], kSizes[i / 8]),
              GraphLot(i).Hostile(64, 48));
    for (int32_t row = 40; row < 88; ++row) std::fill_n(&sheet.At(80, row), 64, kGround);
    EXPECT_EQ(sheet.pixels, Sheet(160, 130).pixels) << kSizes[i % 8] << " x " << kSizes[i / 8];
  }
}

// A frame of 1920 x 1080 with all bars at full scale and no grid, caption or output.
struct FullFrame {
  GraphInputs in;
  Sheet sheet{1920, 1080};

  FullFrame() {
    in.levels.fill(1.0);
    in.settings.logarithmicScale = in.settings.output = false;
    std::ranges::fill(sheet.pixels, PF_Pixel{});
  }
  void Draw() { DrawGraph(sheet.Part(0, 0, 1920, 1080), MakeGraphLayout(1920, 1080), in); }

  // The first and last of each run of drawn pixels.
  std::string Row(int32_t y) {
    return Runs(1920, [&](int32_t x) { return sheet.At(x, y).alpha != 0; });
  }
  std::string Column(int32_t x) {
    return Runs(1080, [&](int32_t y) { return sheet.At(x, y).alpha != 0; });
  }

 private:
  template <typename IsDrawn>
  static std::string Runs(int32_t end, IsDrawn isDrawn) {
    std::ostringstream text;
    for (int32_t i = 0, first = -1; i <= end; ++i) {
      const bool drawn = i < end && isDrawn(i);
      if (drawn && first < 0) first = i;
      if (drawn || first < 0) continue;
      text << first << '-' << i - 1 << ' ';
      first = -1;
    }
    return text.str();
  }
};

TEST(FrameOf1080Rows, GridLinesStandWhereTheyArePublished) {
  FullFrame frame;
  frame.in.settings.spectrum = false;
  frame.in.settings.logarithmicScale = true;
  frame.Draw();
  EXPECT_EQ(frame.Column(1500),
            "108-108 110-110 113-113 117-117 123-123 133-133 148-148 170-170 204-204 255-255 "
            "331-331 446-446 618-618 877-877 972-972 ");
  EXPECT_EQ(frame.Row(618), "96-1824 ");
  EXPECT_EQ(frame.Row(500), "192-192 1344-1344 ");
  EXPECT_EQ(frame.Column(1344), "108-972 ");
}

// 20 segments of 43 rows, each without its lowest 4: 860 rows, and 432 are nearest to 10 of 43.
TEST(FrameOf1080Rows, BarsGapsAndColoursStandWhereTheyArePublished) {
  FullFrame frame;
  frame.in.settings.quantize = true;
  frame.in.settings.gradient = kGradientVertical;
  frame.in.levels.fill(0.0);
  frame.in.levels[0] = 1.0;
  frame.in.levels[31] = 0.5;
  frame.Draw();
  EXPECT_EQ(frame.Row(960), "196-227 1312-1343 ");
  EXPECT_EQ(frame.Column(1320),
            "543-581 586-624 629-667 672-710 715-753 758-796 801-839 844-882 887-925 930-968 ");
  EXPECT_TRUE(frame.Column(200).starts_with("113-151 156-194 "));
  // The map's left end is at the bottom: red there, green in the middle.
  EXPECT_EQ(frame.sheet.At(200, 968), (PF_Pixel{255, 255, 0, 0}));
  EXPECT_EQ(frame.sheet.At(200, 544), (PF_Pixel{255, 5, 255, 0}));
}

}  // namespace
