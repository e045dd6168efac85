// Catches a row that was copied where it had to look otherwise, and a copy that reaches beyond the
// bars: against bars and gaps stored pixel by pixel on a ground where no two rows are alike.
#include <gtest/gtest.h>

#include <algorithm>

#include "GraphLot.h"
#include "Sheet.h"

namespace {

constexpr int32_t kWidth = 300;
constexpr int32_t kHeight = 90;

Sheet UnevenGround() {
  Sheet sheet(kWidth, kHeight);
  std::minstd_rand engine(7);
  for (PF_Pixel& pixel : sheet.pixels) pixel.red = static_cast<uint8_t>(engine());
  return sheet;
}

struct PlainBars {
  Sheet& sheet;
  int32_t width = 0;
  int32_t height = 0;
  const GraphInputs& in;
  GraphLayout at = MakeGraphLayout(width, height);
  int32_t segments = in.settings.quantizeValue;
  int32_t segment = at.graphHeight / segments;

  void Store(int32_t row, int32_t first, int32_t end, PF_Pixel pixel) const {
    for (int32_t x = first; x < end; ++x) {
      if (x < width && row >= 0 && row < height) sheet.At(x, row) = pixel;
    }
  }

  int32_t FirstColumn(size_t band) const {
    return static_cast<int32_t>(static_cast<double>(band) * at.bandWidth + at.left);
  }

  PF_Pixel Color(size_t band, int32_t row) const {
    if (!in.settings.colormap) return {255, 255, 255, 255};
    const auto number = static_cast<float>(band);
    const float t = static_cast<float>(row - at.top) / static_cast<float>(at.graphHeight);
    const bool isAcross = in.settings.gradient == kGradientHorizontal;
    const float place = isAcross ? number * 200.0F * 0.03125F : (1.0F - t) * 200.0F;
    const auto entry = static_cast<size_t>(std::min(place + 0.5F, 200.0F));
    const auto byte = [entry](const float* lane) {
      return static_cast<uint8_t>(lane[entry] * 255.0F);
    };
    return {255, byte(in.colorMap.colorMapRed), byte(in.colorMap.colorMapGreen),
            byte(in.colorMap.colorMapBlue)};
  }

  void DrawBar(size_t band) const {
    auto rows = static_cast<int32_t>(at.graphHeight * in.levels[band]);
    if (in.settings.quantize) {
      const float count = static_cast<float>(rows) / static_cast<float>(segment) + 0.5F;
      rows = segment == 0 ? 0 : static_cast<int32_t>(count) * segment;
    }
    for (int32_t row = at.bottom; row > at.bottom - rows; --row) {
      Store(row, FirstColumn(band), FirstColumn(band + 1), Color(band, row));
    }
  }

  void CutSegments() const {
    const float filled = static_cast<float>(segment) * in.settings.fillSegment + 0.5F;
    const int32_t cleared = (segment - static_cast<int32_t>(filled)) / 2;
    for (int32_t k = 0; k < segments; ++k) {
      int32_t row = at.bottom - k * segment;
      for (int32_t i = 0; i < cleared; ++i, --row) {
        Store(row, at.left, at.right, {});
        if (row <= at.top) break;
      }
    }
  }

  void CutBands() const {
    for (int32_t row = at.bottom; row > at.bottom - at.graphHeight; --row) {
      for (size_t band = 0; band < kBandCount; ++band) {
        const int32_t first = FirstColumn(band);
        Store(row, first, first + 4 < at.right ? first + 4 : at.right - 1, {});
      }
    }
  }
};

TEST(SpectrumBars, AreThoseOfThePlainDrawing) {
  const Sheet ground = UnevenGround();
  for (uint32_t seed = 0; seed < 400; ++seed) {
    GraphLot lot(seed);
    const int32_t width = lot.Whole(0, seed % 2 == 0 ? 80 : kWidth);
    const int32_t height = lot.Whole(0, kHeight);
    GraphInputs in = lot.Tame(width, height);
    in.settings.spectrum = true;
    in.settings.logarithmicScale = in.settings.selectionRanges = in.settings.output = false;
    in.settings.quantizeValue = lot.Whole(1, seed % 3 == 0 ? 4 : 90);
    Sheet drawn = ground;
    DrawGraph(drawn.Part(0, 0, width, height), MakeGraphLayout(width, height), in);
    Sheet expected = ground;
    const PlainBars plain{expected, width, height, in};
    for (size_t band = 0; band < kBandCount; ++band) plain.DrawBar(band);
    if (in.settings.quantize) plain.CutSegments();
    if (in.settings.quantize) plain.CutBands();
    EXPECT_EQ(drawn.pixels, expected.pixels) << "seed " << seed << ", " << width << " x " << height;
  }
}

}  // namespace
