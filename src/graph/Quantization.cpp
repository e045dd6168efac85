// Segments, heights in segments, gaps.
#include "graph/Quantization.h"

#include <algorithm>

#include "platform/Truncate.h"

Quantization MakeQuantization(int32_t graphHeight, int32_t quantizeValue, float fillSegment) {
  Quantization quantization;
  quantization.segments = quantizeValue;
  quantization.segment = quantizeValue == 0 ? 0 : graphHeight / quantizeValue;
  const auto filled =
      Truncate<int32_t>(static_cast<float>(quantization.segment) * fillSegment + 0.5F);
  quantization.halfGap = (int64_t{quantization.segment} - filled) / 2;
  return quantization;
}

int64_t QuantizedHeight(const Quantization& quantization, int32_t barHeight) {
  const int32_t segment = quantization.segment;
  if (segment == 0) return 0;
  const auto count =
      Truncate<int32_t>(static_cast<float>(barHeight) / static_cast<float>(segment) + 0.5F);
  return int64_t{count} * segment;
}

bool IsGapRow(const Quantization& quantization, const GraphLayout& layout, int64_t row) {
  if (quantization.segment <= 0 || quantization.segments <= 0) return false;
  if (row < layout.top || row > layout.bottom) return false;
  const int64_t above = layout.bottom - row;
  const int64_t number =
      std::min<int64_t>(above / quantization.segment, int64_t{quantization.segments} - 1);
  return above - number * quantization.segment < quantization.halfGap;
}
