// Rows of coverage on rows of pixels.
#include "drawing/CoveragePaint.h"

#include <algorithm>
#include <cstring>

#include "drawing/Compositing.h"

namespace {

int32_t Reduced(uint8_t coverage, int32_t opacity) {
  return opacity < 256 ? (coverage * opacity) >> 8 : coverage;
}

// How many of `count` bytes are all 0 or all 255, as the first one is, before one differs.
int32_t CountRun(const uint8_t* coverage, int32_t count) {
  constexpr int32_t kWord = sizeof(uint64_t);
  const uint64_t wanted = coverage[0] == 0 ? 0 : ~uint64_t{0};
  int32_t run = 1;
  for (; run + kWord <= count; run += kWord) {
    uint64_t eight = 0;
    std::memcpy(&eight, coverage + run, sizeof(eight));
    if (eight != wanted) break;
  }
  while (run < count && coverage[run] == coverage[0]) ++run;
  return run;
}

}  // namespace

// Most of a shape is wholly covered, and most of a frame's inside isn't at all: both go by runs.
void PaintCoverage(const CoverageRun& run, ColorBGRA color, int32_t opacity) {
  color.alpha = 255;
  int32_t count = 1;
  for (int32_t i = 0; i < run.count; i += count) {
    const uint8_t coverage = run.coverage[i];
    count = coverage == 0 || coverage == 255 ? CountRun(run.coverage + i, run.count - i) : 1;
    if (coverage == 0) continue;
    if (coverage == 255 && opacity >= 256) {
      std::fill_n(run.pixels + i, count, color);
      continue;
    }
    for (int32_t k = i; k < i + count; ++k) {
      CompositePixel(run.pixels[k], color, Reduced(coverage, opacity));
    }
  }
}

void StoreCoverage(const CoverageRun& run, int32_t opacity) {
  for (int32_t i = 0; i < run.count; ++i) {
    run.pixels[i].alpha = static_cast<uint8_t>(Reduced(run.coverage[i], opacity));
  }
}
