// A picture of floating values, used to bring pictures to another size.
#pragma once

#include <cstdint>

#include "drawing/GenericWorld.h"

// 0 to 1, straight alpha, in the order of the bytes of a ColorBGRA.
struct FloatPixelRGBA {
  float blue = 0.0F;
  float green = 0.0F;
  float red = 0.0F;
  float alpha = 0.0F;
};

static_assert(sizeof(FloatPixelRGBA) == 16);

class FloatBufferRGBA : public GenericWorld<FloatPixelRGBA> {
 public:
  // Takes in, or gives out, pixels of 4 bytes from the top left on, as far as both pictures reach.
  //
  // bytes      B, G, R, A; borrowed for the call
  // rowBytes   from one row to the next
  // Going out, values are cut to whole numbers and held within 0 to 255.
  void ImportBGRA8(const uint8_t* bytes, int32_t importWidth, int32_t importHeight,
                   int32_t importRowBytes);
  void ExportBGRA8(int32_t exportWidth, int32_t exportHeight, int32_t exportRowBytes,
                   uint8_t* bytes) const;

  // Brings sourceWidth x sourceHeight pixels to width x height with Catmull-Rom weights. The top
  // left pixels of both stand on one another. Beyond the source's edges its last pixels go on.
  //
  // Pixels that the destination doesn't hold are left out; a size below 1 and an empty source draw
  // nothing.
  static void Resample(const FloatBufferRGBA& source, int32_t sourceWidth, int32_t sourceHeight,
                       FloatBufferRGBA& destination, int32_t width, int32_t height);
};
