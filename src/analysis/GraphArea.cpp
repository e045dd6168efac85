// The graph's place in a frame.
#include "analysis/GraphArea.h"

#include "platform/Truncate.h"

GraphArea ComputeGraphArea(int32_t width, int32_t height) {
  GraphArea area;
  area.left = Truncate<int32_t>(width * 0.1);
  area.right = Truncate<int32_t>(width * 0.7);
  area.top = Truncate<int32_t>(height * 0.1);
  area.bottom = Truncate<int32_t>(height * 0.9);
  // Neither difference can overflow: both ends have the sign of the size they come from.
  area.bandWidth = (area.right - area.left) * 0.03125;
  const int32_t graphHeight = area.bottom - area.top;
  area.levelScale = graphHeight == 0 ? 1.0 : 1.0 / graphHeight;
  return area;
}
