// From corner points to band runs and level windows.
#include "analysis/RangeGeometry.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "analysis/GraphArea.h"
#include "platform/Truncate.h"
#include "shell/ParameterValue.h"

namespace {

// The larger of value and low first, then the smaller of that and high: high wins in a graph so
// small that high lies below low.
double Hold(double value, double low, double high) {
  return std::min(std::max(value, low), high);
}

// The column of the graph in which x falls. A graph without width divides by 0; its right edge
// lies left of its left one, so that the quotient is infinite, not NaN, and no band.
int32_t BandAt(double x, const GraphArea& area) {
  return Truncate<int32_t>((Hold(x, area.left, area.right - 1.0) - area.left) / area.bandWidth);
}

double LevelAt(double y, const GraphArea& area) {
  return (area.bottom - Hold(y, area.top, area.bottom)) * area.levelScale;
}

}  // namespace

void ComputeRangeGeometry(const PF_ParamDef* const* params, int32_t w, int32_t h,
                          RangeGeometry& geometry) {
  const GraphArea area = ComputeGraphArea(w, h);
  for (int32_t range = 0; range < kRangeCount; ++range) {
    const PF_PointDef& corner1 = params[RangeParameter(range, kRangeCorner1)]->u.td;
    const PF_PointDef& corner2 = params[RangeParameter(range, kRangeCorner2)]->u.td;
    const bool isTrigger = PopupChoice(params, RangeParameter(range, kRangeType)) == kTypeTrigger;
    const auto [xa, xb] =
        std::minmax({FixedToDouble(corner1.x_value), FixedToDouble(corner2.x_value)});
    double yTop = FixedToDouble(corner1.y_value);
    double yBottom = FixedToDouble(corner2.y_value);
    if (!isTrigger && yBottom < yTop) std::swap(yTop, yBottom);

    BandRun& run = geometry.bands[static_cast<size_t>(range)];
    run.firstBand = BandAt(xa, area);
    run.lastBand = BandAt(xb, area);
    LevelWindow& window = geometry.levels[static_cast<size_t>(range)];
    window.upperLevel = LevelAt(yTop, area);
    window.lowerLevel = isTrigger ? window.upperLevel : LevelAt(yBottom, area);
  }
}
