// Catches paintings that land elsewhere, under another rule, or not in the picture's own pixels;
// and numbers that make cairo give up.
#include "workbench/drawbot/PictureCanvas.h"

#include <gtest/gtest.h>

#include <cfloat>

#include "workbench/Failure.h"

namespace {

constexpr DRAWBOT_ColorRGBA kWhite{1.0F, 1.0F, 1.0F, 1.0F};
constexpr ClipBox kEverywhere{-1e9, -1e9, 1e9, 1e9};

PathStep Rect(float left, float top, float width, float height) {
  return {PathStep::Kind::kRect, {left, top, width, height}};
}

// A black picture of 10 x 8 whose top left is 0, 40 on the surface.
class BlackCanvas {
 public:
  explicit BlackCanvas(int32_t zoom = 1)
      : canvas(NewPictureCanvas({0, 40, 10, 8, zoom}, {255, 0, 0, 0})) {
    state.clip = kEverywhere;
  }

  // White pixels' worth of light in the picture.
  double Light() const {
    double sum = 0.0;
    for (const PF_Pixel8& pixel : canvas->Copy().pixels) sum += pixel.green / 255.0;
    return sum;
  }
  PF_Pixel8 At(int32_t x, int32_t y) const {
    const Picture picture = canvas->Copy();
    return picture.pixels[static_cast<size_t>(y * picture.width + x)];
  }
  void Fill(std::vector<PathStep> steps, DRAWBOT_FillType fillType = kDRAWBOT_FillType_Winding) {
    canvas->FillPath(state, kWhite, {std::move(steps)}, fillType);
  }

  std::unique_ptr<PictureCanvas> canvas;
  DrawState state;
};

struct FillCase {
  const char* what;
  std::vector<PathStep> steps;
  DRAWBOT_FillType fillType;
  double light;
};
const FillCase kFillCases[] = {
    {"inside", {Rect(2, 42, 3, 2)}, kDRAWBOT_FillType_Winding, 6.0},
    {"over the top left", {Rect(-3, 38, 4, 4)}, kDRAWBOT_FillType_Winding, 2.0},
    {"half a pixel", {Rect(2, 42, 0.5F, 1)}, kDRAWBOT_FillType_Winding, 0.5},
    {"twice", {Rect(2, 42, 4, 4), Rect(3, 43, 2, 2)}, kDRAWBOT_FillType_Winding, 16.0},
    {"with a hole", {Rect(2, 42, 4, 4), Rect(3, 43, 2, 2)}, kDRAWBOT_FillType_EvenOdd, 12.0},
    {"circle", {{PathStep::Kind::kArc, {5, 44, 3, 10, 360}}}, kDRAWBOT_FillType_Winding, 28.27},
    {"largest", {Rect(-FLT_MAX, -FLT_MAX, FLT_MAX, FLT_MAX)}, kDRAWBOT_FillType_Winding, 0.0},
    {"everything", {Rect(-1e30F, -1e30F, 2e30F, 2e30F)}, kDRAWBOT_FillType_Winding, 80.0},
};

TEST(CairoCanvas, FillsTheAreaOfAPathAtEveryZoom) {
  for (const FillCase& c : kFillCases) {
    for (const int32_t zoom : {1, 2, 3, 8}) {
      BlackCanvas canvas(zoom);
      canvas.Fill(c.steps, c.fillType);
      EXPECT_NEAR(canvas.Light() / (zoom * zoom), c.light, 0.05 + c.light / 100) << c.what << zoom;
    }
  }
}

TEST(CairoCanvas, LaysAPenWithItsMiddleOnTheCoordinates) {
  BlackCanvas canvas(2);
  canvas.canvas->StrokePath(canvas.state, {kWhite, 1.0F},
                            {{{PathStep::Kind::kMove, {2, 44}}, {PathStep::Kind::kLine, {6, 44}}}});
  EXPECT_NEAR(canvas.Light(), 4.0 * 4.0, 0.1);
  for (const int32_t y : {7, 8}) EXPECT_EQ(canvas.At(5, y).green, 255) << y;
  for (const int32_t y : {6, 9}) EXPECT_EQ(canvas.At(5, y).green, 0) << y;
}

TEST(CairoCanvas, DrawsThroughMatrixAndClip) {
  BlackCanvas canvas;
  canvas.state.matrix = canvas.state.matrix.After(FromHost({{{2, 0, 0}, {0, 2, 0}, {1, 1, 1}}}));
  canvas.state.Clip({-50, -50, 100, 100});
  canvas.state.Clip({0, 20, 2, 10});            // 1 to 5 and 41 on, on the surface
  canvas.state.Clip({-100, -100, 1000, 1000});  // a clip only narrows
  EXPECT_EQ(canvas.state.ClipBounds().left, 1);
  EXPECT_EQ(canvas.state.ClipBounds().width, 4);
  canvas.Fill({Rect(1, 20, 10, 2)});
  EXPECT_NEAR(canvas.Light(), 2.0 * 4.0, 0.05);
  EXPECT_EQ(canvas.At(3, 1).green, 255);
}

// Each of these would leave cairo in an error for good.
TEST(CairoCanvas, StaysUsableBehindMatricesAndPensOfAnyKind) {
  BlackCanvas canvas;
  for (const DrawMatrix& matrix :
       {DrawMatrix{0, 0, 0, 0, 0, 0}, DrawMatrix{1, 1, 0, 1, 1, 0},
        DrawMatrix{1e300, 0, 0, 0, 1e300, 0}, DrawMatrix{1, 0, 1e300, 0, 1, -1e300},
        DrawMatrix{1e-200, 0, 0, 0, 1e-100, 0}}) {
    DrawState state{matrix, kEverywhere};
    state.Clip({-9, -9, 9000, 9000});
    const DrawPath path{{Rect(0, 100, 1, 1), {PathStep::Kind::kCurve, {1e38F, -1e38F}}}};
    canvas.canvas->FillPath(state, kWhite, path, kDRAWBOT_FillType_EvenOdd);
    canvas.canvas->StrokePath({{}, {}}, {kWhite, FLT_MAX}, path);
    canvas.canvas->PlaceText(state, kWhite, {"Apply", 1e20F, {1e30F, 0}});
    canvas.canvas->PlaceImage(state, {1, 1, {0xFFFFFFFFU}}, {1e30F, 1e30F}, 2.0F);
  }
  EXPECT_EQ(canvas.Light(), 0.0);
  canvas.Fill({Rect(0, 40, 2, 2)});
  EXPECT_NEAR(canvas.Light(), 4.0, 0.01);
  EXPECT_THROW(NewPictureCanvas({0, 0, 32767, 1, 2}, {}), JobFailure);
  EXPECT_TRUE(NewPictureCanvas({0, 0, 0, 0, 1}, {})->Copy().pixels.empty());
}

TEST(CairoCanvas, ShrinksAnImageOfTwiceTheSizeToTheMeanOfItsPixels) {
  BlackCanvas canvas;
  // Blue first, straight alpha: rows of 3 pixels, of which 2 belong to the image.
  const uint8_t rows[] = {0, 80, 0, 255, 0,   120, 0, 255, 9, 9, 9, 9,
                          0, 40, 0, 255, 255, 0,   0, 0,   9, 9, 9, 9};
  canvas.state.matrix = {0.5, 0, 0, 0, 0.5, 0};
  canvas.canvas->PlaceImage(
      canvas.state, CopyImage(2, 2, 12, kDRAWBOT_PixelLayout_32BGRA_Straight, rows), {8, 84}, 1.0F);
  EXPECT_NEAR(canvas.At(4, 2).green, 60, 1);
  EXPECT_EQ(canvas.At(4, 2).blue, 0) << "a colour under alpha 0 shows";
  EXPECT_NEAR(canvas.Light(), 60 / 255.0, 0.01);
}

TEST(CairoCanvas, CopiesThePixelsOfAnImageEnlargedByAWholeNumber) {
  BlackCanvas canvas(4);
  canvas.state.matrix = {0.5, 0.0, 0.0, 0.0, 0.5, 0.0};
  canvas.canvas->PlaceImage(canvas.state, {2, 1, {0xFFFFFFFFU, 0xFF000000U}}, {8, 84}, 1.0F);
  EXPECT_EQ(canvas.At(17, 9).green, 255);
  EXPECT_EQ(canvas.At(18, 9).green, 0);
}

TEST(CairoCanvas, LetsNoGroundInAtTheEdgesOfAnImageEnlarged) {
  BlackCanvas canvas;
  canvas.state.matrix = {4, 0, 0, 0, 4, 0};
  canvas.canvas->PlaceImage(canvas.state, {1, 1, {0xFFFFFFFFU}}, {1, 10}, 1.0F);
  EXPECT_NEAR(canvas.Light(), 16.0, 0.01);
}

TEST(CopyImage, TakesEachLayoutForWhatItIs) {
  const uint8_t pixel[] = {200, 100, 50, 100};
  EXPECT_EQ(CopyImage(1, 1, 4, kDRAWBOT_PixelLayout_32BGR, pixel).pixels[0], 0xFF3264C8U);
  EXPECT_EQ(CopyImage(1, 1, 4, kDRAWBOT_PixelLayout_32BGRA_Straight, pixel).pixels[0],
            0x6414274EU);  // 20, 39 and 78: 100 / 255 of each
  EXPECT_EQ(CopyImage(1, 1, 4, kDRAWBOT_PixelLayout_32BGRA_Premul, pixel).pixels[0], 0x64326464U)
      << "no channel above alpha";
}

}  // namespace
