// The order of the graph's elements.
#include "graph/SpectrumGraph.h"

#include "graph/Captions.h"
#include "graph/Grid.h"
#include "graph/RangeMarks.h"
#include "graph/SpectrumBars.h"

void DrawSpectrumGraph(const OutputWorld& world, const GraphLayout& layout,
                       const GraphSettings& settings, const GradientRecord& colorMap,
                       std::span<const double, kBandCount> levels, const RangeGeometry& geometry) {
  if (settings.spectrum) DrawSpectrumBars(world, layout, settings, colorMap, levels);
  if (settings.spectrum && settings.logarithmicScale) {
    DrawCaption(world, kSpectrumCaption, layout.left, layout.captionRow);
  }
  if (settings.output) DrawCaption(world, kOutputCaption, layout.right, layout.captionRow);
  if (settings.logarithmicScale) DrawGrid(world, layout);
  DrawRangeMarks(world, layout, settings, geometry);
}
