// The layout of a frame.
#include "graph/GraphLayout.h"

#include "analysis/GraphArea.h"
#include "platform/Truncate.h"

namespace {

constexpr std::array<double, kRangeCount> kOutputBarPlaces = {0.8, 0.85, 0.9};  // of the width
constexpr int32_t kCaptionRise = 8;                                             // rows

}  // namespace

GraphLayout MakeGraphLayout(int32_t width, int32_t height) {
  const GraphArea area = ComputeGraphArea(width, height);
  GraphLayout layout;
  layout.top = area.top;
  layout.bottom = area.bottom;
  layout.left = area.left;
  layout.right = area.right;
  layout.graphHeight = area.bottom - area.top;
  layout.bandWidth = area.bandWidth;
  for (size_t i = 0; i < layout.column.size(); ++i) {
    layout.column[i] = Truncate<int32_t>(static_cast<double>(i) * area.bandWidth + area.left);
  }
  for (size_t range = 0; range < layout.outputColumn.size(); ++range) {
    layout.outputColumn[range] = Truncate<int32_t>(kOutputBarPlaces[range] * width);
  }
  layout.outputBarWidth = Truncate<int32_t>(area.bandWidth);
  layout.gridFirstColumn = Truncate<int32_t>(0.05 * width);
  layout.gridLastColumn = Truncate<int32_t>(0.95 * width);
  layout.captionRow = area.top - kCaptionRise;
  return layout;
}
