// Bars and gaps, drawn row by row: a frame's rows lie apart in memory, the columns of a row don't.
#include "graph/SpectrumBars.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "gradient/RampIndex.h"
#include "graph/BarSpans.h"
#include "graph/Quantization.h"
#include "platform/Truncate.h"

namespace {

constexpr PF_Pixel kWhite = {255, 255, 255, 255};

// What the rows of one frame share.
struct BarPlan {
  BarHeights heights{};
  BandColors colors{};          // white where they go unused
  bool isColoredByRow = false;  // the colours along the height take the place of `colors`
  bool hasGaps = false;
  Quantization quantization;
  BandGaps bandGaps{};
  ColumnStretch rowGap;
};

PF_Pixel RampColor(const GradientRecord& colorMap, int32_t index) {
  const auto entry = static_cast<size_t>(index);
  return {255, Truncate<uint8_t>(colorMap.colorMapRed[entry] * 255.0F),
          Truncate<uint8_t>(colorMap.colorMapGreen[entry] * 255.0F),
          Truncate<uint8_t>(colorMap.colorMapBlue[entry] * 255.0F)};
}

PF_Pixel RowColor(const GraphLayout& layout, const GradientRecord& colorMap, int64_t row) {
  const float height = layout.graphHeight == 0 ? 0.0F
                                               : static_cast<float>(row - layout.top) /
                                                     static_cast<float>(layout.graphHeight);
  return RampColor(colorMap, RampIndexAlongHeight(height));
}

BarHeights ComputeBarHeights(const GraphLayout& layout, const BarPlan& plan,
                             std::span<const double, kBandCount> levels) {
  BarHeights heights{};
  for (size_t band = 0; band < heights.size(); ++band) {
    // In this order what is not a number becomes 0.0.
    const double level = std::min(std::max(0.0, levels[band]), 1.0);
    const auto height = Truncate<int32_t>(layout.graphHeight * level);
    heights[band] = plan.hasGaps ? QuantizedHeight(plan.quantization, height) : height;
  }
  return heights;
}

BandColors ComputeBandColors(const GraphSettings& settings, const GradientRecord& colorMap) {
  BandColors colors{};
  colors.fill(kWhite);
  if (!settings.colormap || settings.gradient != kGradientHorizontal) return colors;
  for (int32_t band = 0; band < kBandCount; ++band) {
    colors[static_cast<size_t>(band)] = RampColor(colorMap, RampIndexAcrossBands(band));
  }
  return colors;
}

BarPlan MakeBarPlan(const OutputWorld& world, const GraphLayout& layout,
                    const GraphSettings& settings, const GradientRecord& colorMap,
                    std::span<const double, kBandCount> levels) {
  BarPlan plan;
  plan.hasGaps = settings.quantize;
  plan.quantization =
      MakeQuantization(layout.graphHeight, settings.quantizeValue, settings.fillSegment);
  plan.heights = ComputeBarHeights(layout, plan, levels);
  plan.colors = ComputeBandColors(settings, colorMap);
  plan.isColoredByRow = settings.colormap && settings.gradient != kGradientHorizontal;
  plan.bandGaps = BandGapsOf(world, layout);
  plan.rowGap = RowGapOf(world, layout);
  return plan;
}

// Draws the rows from the bottom upward. Most look like one before them, and are copied from it.
class BarRows {
 public:
  BarRows(const OutputWorld& outputWorld, const GraphLayout& graphLayout, const BarPlan& barPlan,
          const GradientRecord& gradient)
      : world(outputWorld), layout(graphLayout), plan(barPlan), colorMap(gradient) {}

  void Draw(int64_t above) {
    const int64_t row = layout.bottom - above;
    PF_Pixel* pixels = world.Row(row);
    if (plan.hasGaps && IsGapRow(plan.quantization, layout, row)) {
      ClearStretch(pixels, plan.rowGap);
      return;
    }
    TakeSpans(above, plan.hasGaps && row > layout.top);
    if (plan.isColoredByRow) TakeColor(RowColor(layout, colorMap, row));
    if (model == nullptr) {
      Store(pixels);
      model = pixels;
      return;
    }
    for (size_t i = 0; i < bars.stretchCount; ++i) CopyStretch(model, pixels, bars.stretches[i]);
  }

 private:
  void TakeSpans(int64_t above, bool isCut) {
    if (above < bars.endAbove && isCut == areCut) return;
    const auto gaps =
        isCut ? std::span<const ColumnSpan>(plan.bandGaps) : std::span<const ColumnSpan>();
    bars = BarSpansAt(world, layout, plan.heights, plan.colors, above, gaps);
    areCut = isCut;
    model = nullptr;
  }

  void TakeColor(PF_Pixel color) {
    if (WordOf(color) == WordOf(rowColor)) return;
    rowColor = color;
    model = nullptr;
  }

  void Store(PF_Pixel* pixels) const {
    for (size_t i = 0; i < bars.count; ++i) {
      ColumnSpan span = bars.spans[i];
      if (plan.isColoredByRow && i < bars.barCount) span.color = rowColor;
      StoreSpan(pixels, span);
    }
  }

  const OutputWorld& world;
  const GraphLayout& layout;
  const BarPlan& plan;
  const GradientRecord& colorMap;
  BarSpans bars;
  bool areCut = false;
  PF_Pixel rowColor = kWhite;
  const PF_Pixel* model = nullptr;  // a row as the next ones are to be
};

}  // namespace

void DrawSpectrumBars(const OutputWorld& world, const GraphLayout& layout,
                      const GraphSettings& settings, const GradientRecord& colorMap,
                      std::span<const double, kBandCount> levels) {
  const BarPlan plan = MakeBarPlan(world, layout, settings, colorMap, levels);
  // Gaps reach to the top of the graph, whatever the bars do.
  const int64_t rows = std::max(*std::ranges::max_element(plan.heights),
                                plan.hasGaps ? int64_t{layout.graphHeight} + 1 : 0);
  const int64_t firstAbove = std::max<int64_t>(0, layout.bottom - (world.height - 1));
  const int64_t endAbove = std::min(rows, int64_t{layout.bottom} + 1);
  BarRows barRows(world, layout, plan, colorMap);
  for (int64_t above = firstAbove; above < endAbove; ++above) barRows.Draw(above);
}
