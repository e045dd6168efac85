// Catches dimming that is done once too often or too rarely, and marks on row 0, on column 0 or
// outside of the world.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>
#include <string>

#include "GuardedWorld.h"
#include "graph/Captions.h"
#include "graph/GraphPrimitives.h"

namespace {

// A small opaque white world, and its picture as text: a lit pixel is '#', else how often its alpha
// was halved.
struct WhiteWorld {
  GuardedWorld guarded;

  explicit WhiteWorld(WorldShape shape) : guarded(shape, false, 1) {
    for (int32_t y = 0; y < shape.height; ++y) {
      for (int32_t x = 0; x < shape.width; ++x) std::fill_n(guarded.At(x, y), 4, uint8_t{255});
    }
  }

  char Sign(PF_Pixel pixel) const {
    if (pixel.green != 255 || pixel.red != 255 || pixel.blue != 255) return 'x';
    switch (pixel.alpha) {
      case 255:
        return '.';
      case 127:
        return '1';
      case 63:
        return '2';
      case 31:
        return '3';
      default:
        return '?';
    }
  }

  std::string Text() {
    std::string text;
    for (int32_t y = 0; y < guarded.shape.height; ++y) {
      for (int32_t x = 0; x < guarded.shape.width; ++x) text += Sign(guarded.Pixel(x, y));
      text += '\n';
    }
    return text;
  }
};

TEST(Primitives, AFrameDimsItsCornersTwiceAndAFlatOneOnlyItsRows) {
  struct FrameCase {
    const char* what = nullptr;
    PixelRect rect;
    const char* expected = nullptr;
  };
  const FrameCase kCases[] = {
      {"frame", {1, 3, 1, 4}, "......\n.2112.\n.1..1.\n.2112.\n......\n"},
      {"one row", {2, 2, 1, 4}, "......\n......\n.3223.\n......\n......\n"},
      {"rows the wrong way round", {3, 2, 1, 4}, "......\n......\n.1111.\n.1111.\n......\n"},
      {"columns the wrong way round", {1, 3, 3, 2}, "......\n..11..\n..11..\n..11..\n......\n"},
      {"over all edges", {0, 4, 0, 5}, "......\n.....1\n.....1\n.....1\n.11112\n"},
  };
  for (const FrameCase& c : kCases) {
    WhiteWorld white({6, 5, 3});
    DimFrame(white.guarded.World(), c.rect);
    EXPECT_EQ(white.Text(), c.expected) << c.what;
  }
}

TEST(Primitives, AnOutlineStandsBetweenTwoDimmedFrames) {
  WhiteWorld white({9, 8, 0});
  DrawRangeOutline(white.guarded.World(), {2, 6, 2, 7});
  EXPECT_EQ(white.Text(),
            ".........\n"
            ".21111112\n"
            ".1......1\n"
            ".1.2112.1\n"
            ".1.1..1.1\n"
            ".1.2112.1\n"
            ".1......1\n"
            ".21111112\n");
}

TEST(Primitives, ATriggersOutlineIsOneLineBetweenDimmedRows) {
  WhiteWorld white({9, 5, 0});
  DrawRangeOutline(white.guarded.World(), {2, 2, 2, 6});
  // The inner frame's rows fall on the outer ones.
  EXPECT_EQ(white.Text(),
            ".........\n"
            ".2122212.\n"
            ".1.....1.\n"
            ".2122212.\n"
            ".........\n");
}

TEST(Primitives, NeighbouringGlyphsDimTheColumnBetweenThemTwice) {
  WhiteWorld white({90, 9, 0});
  DrawCaption(white.guarded.World(), kSpectrumCaption, 2, 2);
  std::istringstream rows(white.Text());
  std::string row;
  std::getline(rows, row);
  EXPECT_EQ(row, std::string(90, '.'));
  std::getline(rows, row);  // the row above S, P, E: backings of six columns, five apart
  EXPECT_EQ(row.substr(0, 18), ".11111211112111121");
}

TEST(Primitives, PlacesAtTheEndsOfTheNumbersDrawNothing) {
  GuardedWorld guarded({16, 16, 4}, true, 1);
  const GuardedWorld before = guarded;
  const OutputWorld world = guarded.World();
  for (const int64_t far : {int64_t{std::numeric_limits<int32_t>::min()}, int64_t{-100},
                            int64_t{100}, int64_t{std::numeric_limits<int32_t>::max()}}) {
    for (const int64_t near : {int64_t{5}, far}) {
      PlotPixel(world, far, near);
      PlotPixel(world, near, far);
      DrawGlyph(world, kDigits[1], far, near);
      DrawGlyph(world, kDigits[1], near, far);
      DrawCaption(world, kOutputCaption, near, far);
      DimFrame(world, {far, far, near, near});
      DrawRangeOutline(world, {far, far, near, near});
      DrawRangeOutline(world, {near, near, far, far});
    }
  }
  PlotPixel(world, 0, 5);
  PlotPixel(world, 5, 0);
  DimRect(world, {0, 0, 0, 15});
  DimRect(world, {0, 15, 0, 0});
  EXPECT_EQ(guarded.bytes, before.bytes);
}

}  // namespace
