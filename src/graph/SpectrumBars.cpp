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
  std::array<ColumnSpan, kBandCount> bandGaps{};
  ColumnSpan rowGap;
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
  plan.bandGaps = BandGaps(world, layout);
  plan.rowGap = RowGap(world, layout);
  return plan;
}

void DrawBarRow(const OutputWorld& world, const GraphLayout& layout, const BarPlan& plan,
                const GradientRecord& colorMap, const BarSpans& bars, int64_t row) {
  PF_Pixel* pixels = world.Row(row);
  if (plan.hasGaps && IsGapRow(plan.quantization, layout, row)) {
    StoreSpan(pixels, plan.rowGap);
    return;
  }
  const PF_Pixel rowColor = plan.isColoredByRow ? RowColor(layout, colorMap, row) : kWhite;
  for (size_t i = 0; i < bars.count; ++i) {
    ColumnSpan span = bars.spans[i];
    if (plan.isColoredByRow) span.color = rowColor;
    StoreSpan(pixels, span);
  }
  if (!plan.hasGaps || row <= layout.top) return;
  for (const ColumnSpan& gap : plan.bandGaps) StoreSpan(pixels, gap);
}

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
  BarSpans bars;
  for (int64_t above = firstAbove; above < endAbove; ++above) {
    if (above >= bars.endAbove) {
      bars = BarSpansAt(world, layout, plan.heights, plan.colors, above);
    }
    DrawBarRow(world, layout, plan, colorMap, bars, layout.bottom - above);
  }
}
