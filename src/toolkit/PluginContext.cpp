// The host's call where there is no host.
#include "toolkit/PluginContext.h"

bool PluginContext::BlitToHost(const NativeImageBuffer& /*buffer*/, int32_t /*srcX*/,
                               int32_t /*srcY*/, int32_t /*width*/, int32_t /*height*/,
                               int32_t /*dstX*/, int32_t /*dstY*/) {
  return false;
}
