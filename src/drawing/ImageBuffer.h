// A picture of 32-bit pixels in memory, and the painting of rectangles and pictures on it.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"
#include "drawing/Rect.h"

// Coordinates are physical pixels of the picture, unless it is scale-aware: then they are logical
// ones, and v stands for the physical truncate(v x scale + 0.5), edge by edge.
//
// Opacity goes from 0 to 256, where 256 and more is opaque and less than 0 counts as 0. A clip of
// null is the whole picture. Anything that lies outside is cut away; empty and reversed rectangles
// draw nothing. A picture may be drawn onto itself: rows go from the top, each read before the
// next.
class ImageBuffer {
 public:
  ImageBuffer() = default;
  // The same pixels at scale 1. Throws as Allocate does.
  ImageBuffer(const ImageBuffer& source);
  ImageBuffer& operator=(const ImageBuffer&) = delete;
  virtual ~ImageBuffer();

  // Makes room for width x height pixels, all 0, at scale 1 and not scale-aware. Nothing happens
  // where the size is the same; a width or height below 1 leaves an empty picture.
  //
  // alignRows   rows take a multiple of 4 pixels
  // All bytes together must number less than 2^31.
  // Throws App::ExceptionInfo kOutOfMemory; the picture is as it was then.
  virtual void Allocate(int32_t newWidth, int32_t newHeight, bool alignRows);

  // Allocates the larger of the present and the wanted size in each direction, where that differs.
  virtual void EnsureSize(int32_t wantedWidth, int32_t wantedHeight);

  // Gives the memory back: an empty picture at scale 1, not scale-aware.
  virtual void Release();

  // At opacity 256 all four bytes of the colour are stored, so that the colour 0 clears; below it
  // blue, green and red are composited and the colour's own alpha plays no part.
  void FillRect(const Rect& rect, ColorBGRA color, int32_t opacity, const Rect* clip);

  // Four fills of `thickness` inward from the rectangle's edges; the sides stand between top and
  // bottom. A frame thicker than the rectangle reaches beyond it.
  void DrawFrame(const Rect& rect, ColorBGRA color, int32_t thickness, int32_t opacity,
                 const Rect* clip);

  // Draws `source`, a part of this picture, with its alpha, its top left at (x, y) of the
  // destination. A destination of another scale that is scale-aware gets it stretched.
  //
  // physical   coordinates are the destination's physical pixels, whatever its scale
  void BlendTo(ImageBuffer& destination, const Rect& source, int32_t x, int32_t y, int32_t opacity,
               const Rect* clip, bool physical) const;

  // As BlendTo in physical pixels, without the source's alpha: at opacity 256 pixels are stored as
  // they are, below it they are composited.
  void CopyTo(ImageBuffer& destination, const Rect& source, int32_t x, int32_t y, int32_t opacity,
              const Rect* clip) const;

  struct ScaleOptions {
    bool boxFilter = false;  // where the picture shrinks: the mean of four pixels
    bool bilinear = false;
    bool blend = false;     // composite with the sample's alpha
    bool additive = false;  // add blue, green and red; alpha becomes the larger one
    int32_t opacity = 256;  // of the alpha that blend and additive use; else it plays no part
  };

  // Stretches `source` over `target`, a rectangle of the destination. Physical pixels throughout.
  // `source` may reach beyond this picture, where all is 0; blend goes before additive.
  void ScaleTo(ImageBuffer& destination, const Rect& source, const Rect& target, const Rect* clip,
               const ScaleOptions& options) const;

  int32_t Width() const { return width; }
  int32_t Height() const { return height; }
  int32_t RowBytes() const { return rowBytes; }
  Rect Bounds() const { return {0, 0, width, height}; }

  // Pixels of row y, from the top; null for an empty picture.
  ColorBGRA* Row(int32_t y);
  const ColorBGRA* Row(int32_t y) const;

  // Physical pixels per logical pixel. Every change of size sets it back to 1, so it is set last.
  float Scale() const { return scale; }
  void SetScale(float newScale) { scale = newScale; }
  bool IsScaleAware() const { return scaleAware; }
  void SetScaleAware(bool aware) { scaleAware = aware; }

  // Whether coordinates are logical ones that differ from physical ones.
  bool ConvertsCoordinates() const { return scaleAware && scale != 1.0F; }
  // The picture's rectangle cut by a clip in physical pixels; null doesn't cut.
  Rect ClippedBounds(const Rect* clip) const;
  // The same with a clip in the picture's own coordinates, logical where it converts them.
  Rect ClippedBoundsOfLogical(const Rect* clip) const;
  // Logical to physical, where this picture converts at all; else the same.
  int32_t ToPhysical(int32_t coordinate) const;
  Rect ToPhysical(const Rect& rect) const;

 protected:
  int32_t width = 0;
  int32_t height = 0;
  int32_t rowBytes = 0;
  uint8_t* pixels = nullptr;
  float scale = 1.0F;
  bool scaleAware = false;

 private:
  void FreePixels();
};
