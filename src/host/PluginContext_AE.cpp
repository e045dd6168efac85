// Answers from the host's records.
#include "host/PluginContext_AE.h"

#include "host/BlitToDrawBot.h"

namespace {

double Quotient(const PF_RationalScale& ratio) {
  if (ratio.num == 0 || ratio.den == 0) return 1.0;
  return static_cast<double>(ratio.num) / static_cast<double>(ratio.den);
}

}  // namespace

bool PluginContext_AE::BlitToHost(const NativeImageBuffer& buffer, int32_t srcX, int32_t srcY,
                                  int32_t width, int32_t height, int32_t dstX, int32_t dstY) {
  return BlitToDrawBot(*this, buffer, srcX, srcY, width, height, dstX, dstY);
}

double PluginContext_AE::GetDownsampleX() const {
  return Quotient(records.inData->downsample_x);
}

double PluginContext_AE::GetDownsampleY() const {
  return Quotient(records.inData->downsample_y);
}

double PluginContext_AE::GetPixelAspect() const {
  return Quotient(records.inData->pixel_aspect_ratio);
}
