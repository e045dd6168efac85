// From the host's world to one that is safe to draw in.
#include "graph/OutputWorld.h"

OutputWorld MakeOutputWorld(const PF_LayerDef& output) {
  const int64_t stride = output.rowbytes >> 2;
  const bool isSound =
      output.data != nullptr && output.width > 0 && output.height > 0 && output.width <= stride;
  if (!isSound) return {};
  return {output.data, stride, output.width, output.height};
}
