// A bar with round ends, kept as a small picture that is cut into ends and a middle.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"
#include "toolkit/StockPaint.h"

class ScrollStrip {
 public:
  static constexpr double kCornerRadius = 6.0;

  // Draws the bar over a rectangle of any length. The picture is made anew only for another
  // thickness, colour, direction or scale. A bar thicker than 256 pixels is cut there.
  // Throws App::ExceptionInfo kOutOfMemory.
  void Draw(const PaintTarget& target, const Rect& rect, bool horizontal, ColorBGRA color);

 private:
  struct Key {
    int32_t thickness = 0;
    bool horizontal = true;
    ColorBGRA color;
    float scale = 0.0F;

    friend bool operator==(const Key&, const Key&) = default;
  };

  void Make(const Key& wanted);
  // The picture's pixels from..to along the bar, with their near edge at `place` along it.
  void DrawPiece(const PaintTarget& target, const Rect& rect, int32_t from, int32_t to,
                 int64_t place) const;

  Key key;
  ImageBuffer picture;
};
