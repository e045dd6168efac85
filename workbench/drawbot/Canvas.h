// The seam to what turns drawing calls into pixels.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "AE_EffectTypes.h"
#include "workbench/drawbot/DrawObjects.h"
#include "workbench/drawbot/DrawState.h"

// A string and how it lies.
//
// origin            the left end, the middle or the right end of its baseline, by alignment
// truncationWidth   what it may take, where truncation asks for a limit
struct PlacedText {
  std::string utf8;
  float fontSize = 0.0F;
  DRAWBOT_PointF32 origin{};
  DRAWBOT_TextAlignment alignment = kDRAWBOT_TextAlignment_Left;
  DRAWBOT_TextTruncation truncation = kDRAWBOT_TextTruncation_None;
  float truncationWidth = 0.0F;
};

// Coordinates are the effect's; the state brings them to the surface. All numbers are finite but
// may be as large as they like; what falls outside is not drawn.
class Canvas {
 public:
  Canvas() = default;
  virtual ~Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  virtual void FillPath(const DrawState& state, const DRAWBOT_ColorRGBA& color,
                        const DrawPath& path, DRAWBOT_FillType fillType) = 0;
  virtual void StrokePath(const DrawState& state, const DrawPen& pen, const DrawPath& path) = 0;
  virtual void PlaceText(const DrawState& state, const DRAWBOT_ColorRGBA& color,
                         const PlacedText& text) = 0;
  virtual void PlaceImage(const DrawState& state, const DrawImage& image,
                          const DRAWBOT_PointF32& origin, float opacity) = 0;
};

// A picture in 8 bits a channel with straight alpha, rows from the top without gaps.
struct Picture {
  int32_t width = 0;
  int32_t height = 0;
  std::vector<PF_Pixel8> pixels;
};
