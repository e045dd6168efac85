// Shapes and captions that the stock controls are drawn of.
#pragma once

#include <cstdint>
#include <string>

#include "drawing/ColorBGRA.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Labeler.h"
#include "drawing/PathPoint.h"
#include "drawing/Rect.h"

struct StockColors {
  static constexpr ColorBGRA Text{0xFFC8C8C8};
  static constexpr ColorBGRA TextOver{0xFFFAFAFA};
  static constexpr ColorBGRA Accent{0xFF1C73AE};
  static constexpr ColorBGRA AccentOver{0xFF2A8CCF};
  static constexpr ColorBGRA DisabledPlate{0xFF313131};
};

// What a control draws on and how much of it comes through. Places are the buffer's logical pixels.
struct PaintTarget {
  ImageBuffer& buffer;
  Rect clip;
  int32_t opacity = 256;  // 0 to 256
};

// Shapes that are empty draw nothing; a radius counts up to half a side.
void FillRound(const PaintTarget& target, const Rect& rect, double radius, ColorBGRA color);
// One pixel wide, inside the rectangle.
void StrokeRound(const PaintTarget& target, const Rect& rect, double radius, ColorBGRA color);
void FillTriangle(const PaintTarget& target, const PathPoint& a, const PathPoint& b,
                  const PathPoint& c, ColorBGRA color);
// A straight bar of this width from a to b.
void DrawBar(const PaintTarget& target, const PathPoint& a, const PathPoint& b, double width,
             ColorBGRA color);
// Text of any bytes and length, cut at the rectangle's edges. A null font is FontDefault.
void DrawCaption(const PaintTarget& target, const std::string& text, const Rect& rect,
                 TextAlignment alignment, ColorBGRA color, const Font* font = nullptr);
// As wide as the caption will be, in logical pixels.
int32_t MeasureCaption(const std::string& text);

// The rectangle with its edges moved inward; a side that is too short has none left.
Rect InsetBy(const Rect& rect, int32_t inset);
// The square of this side in the middle of a rectangle.
Rect CentredSquare(const Rect& rect, int32_t side);
int64_t WidthOf(const Rect& rect);
int64_t HeightOf(const Rect& rect);
