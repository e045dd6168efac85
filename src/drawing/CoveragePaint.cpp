// Rows of coverage on rows of pixels.
#include "drawing/CoveragePaint.h"

#include "drawing/Compositing.h"

namespace {

int32_t Reduced(uint8_t coverage, int32_t opacity) {
  return opacity < 256 ? (coverage * opacity) >> 8 : coverage;
}

}  // namespace

void PaintCoverage(const CoverageRun& run, ColorBGRA color, int32_t opacity) {
  for (int32_t i = 0; i < run.count; ++i) {
    CompositePixel(run.pixels[i], color, Reduced(run.coverage[i], opacity));
  }
}

void StoreCoverage(const CoverageRun& run, int32_t opacity) {
  for (int32_t i = 0; i < run.count; ++i) {
    run.pixels[i].alpha = static_cast<uint8_t>(Reduced(run.coverage[i], opacity));
  }
}
