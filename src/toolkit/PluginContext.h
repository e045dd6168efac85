// The tree's view of the host's call, valid during one event.
#pragma once

#include <cstdint>

class NativeImageBuffer;

// Never deleted through this class: it stands on the stack of the event.
class PluginContext {
 public:
  // Puts a part of the buffer on the host's surface. Coordinates are logical pixels.
  //
  // Returns false where this is not a draw event; nothing is drawn then.
  virtual bool BlitToHost(const NativeImageBuffer& buffer, int32_t srcX, int32_t srcY,
                          int32_t width, int32_t height, int32_t dstX, int32_t dstY);

  virtual double GetDownsampleX() const { return 1.0; }
  virtual double GetDownsampleY() const { return 1.0; }
  virtual double GetPixelAspect() const { return 1.0; }

 protected:
  ~PluginContext() = default;
};
