// Drawing on the surface of an event: lines with a pen, rectangles, strings, pictures.
#pragma once

#include <cstdint>

#include "host/PanelShapes.h"

class PluginGui_API;
struct PanelImage;

// Every operation works on the surface of `gui` and does nothing where it has none, or where the
// host refuses an object that the operation needs.
class PluginGui_DrawUtilsApi {
 public:
  // A picture whose alpha plays no part, its top left at (x, y).
  virtual void DrawPixels(PluginGui_API* gui, float x, float y, const PanelImage* image) = 0;

  // Lines gather in a path, which is stroked when the pen changes or the drawing ends.
  virtual void LineTo(PluginGui_API* gui, float x, float y) = 0;
  virtual void MoveTo(PluginGui_API* gui, float x, float y) = 0;
  // color   null: strokes what is gathered and leaves no pen
  // width   pixels
  virtual void SetPen(PluginGui_API* gui, const Color16* color, float width) = 0;

  // x, y    the start of the baseline
  // text    in the process's multi-byte encoding
  // color   null: white
  virtual void DrawString(PluginGui_API* gui, float x, float y, const char* text, int32_t reserved,
                          const Color16* color) = 0;
  // A picture with premultiplied alpha, its top left at (x, y).
  virtual void DrawPixelsAlpha(PluginGui_API* gui, float x, float y, const PanelImage* image) = 0;
  virtual void FillRect(PluginGui_API* gui, const Rect16& rect, const Color16& color) = 0;
  virtual void DrawPixelsAt(PluginGui_API* gui, int32_t left, int32_t top,
                            const PanelImage* image) = 0;

  // Copies a picture; alpha comes from the first byte of each pixel of the mask, or without a mask
  // from each pixel's blue.
  //
  // pixels, mask   width x height pixels of 4 bytes (B, G, R, A), rows without gaps
  // Returns null for an empty size. The caller gives it to DisposeImage.
  virtual PanelImage* NewImage(int32_t width, int32_t height, const uint8_t* pixels,
                               const uint8_t* mask) = 0;
  virtual void DisposeImage(PanelImage* image) = 0;

  // A cubic curve, gathered like a line.
  //
  // points   x and y of the start, the two control points and the end
  virtual void CurveTo(PluginGui_API* gui, const float (&points)[8]) = 0;

  virtual ~PluginGui_DrawUtilsApi() = default;
};
