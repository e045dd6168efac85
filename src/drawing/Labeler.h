// Measures and draws text from bitmap fonts, and works out how close two letters may stand.
#pragma once

#include <cstdint>

#include "drawing/ColorBGRA.h"
#include "drawing/Fonts.h"
#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"

// Physical pixels per logical pixel of the screen that text is drawn for, 1 at first. Whoever owns
// the screen's picture sets it; fonts are chosen by it, whatever picture is drawn on.
void SetScreenScale(float scale);

enum class TextAlignment : int32_t { kLeft = 0, kCentre = 1, kRight = 2 };

struct TextStyle {
  ColorBGRA color;
  ColorBGRA background;        // where blend is off: what stands where there is no ink
  bool blend = true;           // composite; else blue, green and red are stored, alpha kept
  const Rect* clip = nullptr;  // null is the whole picture
  int32_t opacity = 256;       // 0 to 256
  int32_t tracking = 0;        // physical pixels between characters, besides the kerning
};

// Text is bytes up to a 0, null for none. Bytes outside 32 to 126 have no glyph and width 0.
//
// What needs a font throws App::ExceptionInfo kOutOfMemory where none has been set.
class Labeler {
 public:
  // Chooses what the operations below use: the font, or where allowTwin is on its twin for the
  // screen. `font` is borrowed until the next call and may be null for none.
  //
  // kernThreshold   how much two letters may touch, in coverage
  // kernLimit       how many pixels they may move together, less two; both have fixed values of
  //                 their own for a twin
  void SetFont(const Font* font, int32_t kernThreshold = 128, int32_t kernLimit = 3,
               bool allowTwin = true);

  // Whether a twin was chosen: a logical pixel is then FontScale() of its pixels.
  bool IsScaled() const { return scaled; }
  float FontScale() const { return fontScale; }

  // Physical pixels.
  int32_t GetCharWidth(int32_t code) const;

  // Physical pixels to add between two glyphs: the font's spacing, less what two letters move
  // together. Codes other than letters keep the spacing.
  int32_t GetKerning(int32_t left, int32_t right) const;

  // Logical pixels.
  int32_t GetLineHeight() const;

  // Logical pixels, rounded once for the whole text; 0 for no text.
  int32_t MeasureString(const char* text, int32_t tracking) const;

  // Draws one glyph with its top left at a physical pixel, its clip in physical pixels too.
  void DrawChar(ImageBuffer& buffer, int32_t code, int32_t x, int32_t y,
                const TextStyle& style) const;

  // Draws text that begins at x, or ends there where it is aligned to the right; y is its top.
  // Logical pixels, as the buffer converts them; centred is for rectangles only and counts as left.
  void DrawString(ImageBuffer& buffer, const char* text, int32_t x, int32_t y,
                  TextAlignment alignment, const TextStyle& style) const;

  // Draws text in a rectangle of logical pixels, one pixel below the middle. It isn't clipped.
  void DrawStringInRect(ImageBuffer& buffer, const char* text, const Rect& rect,
                        TextAlignment alignment, const TextStyle& style) const;

 private:
  const Font& Selected() const;

  const Font* selected = nullptr;
  int32_t spacing = 0;
  int32_t threshold = 128;
  int32_t limit = 3;
  bool scaled = false;
  float fontScale = 1.0F;
};

// The one that all panels draw with, on the thread of the user interface.
Labeler& SharedLabeler();
