// Goes along a text as it is drawn, byte by byte.
#pragma once

#include <cstdint>

#include "drawing/Labeler.h"
#include "platform/Truncate.h"

// Logical pixels from the text's begin, each rounded from there.
class TextPen {
 public:
  // The font stays set in the shared labeler for as long as the pen goes.
  explicit TextPen(const Font& font) { labeler.SetFont(&font); }

  struct Extent {
    int32_t left;
    int32_t right;
  };

  Extent Pass(char byte) {
    const int32_t code = static_cast<unsigned char>(byte);
    if (previous >= 0) position += labeler.GetKerning(previous, code);
    previous = code;
    const int32_t left = Logical();
    position += labeler.GetCharWidth(code);
    return {left, Logical()};
  }

 private:
  int32_t Logical() const {
    const double scale = labeler.IsScaled() ? labeler.FontScale() : 1.0;
    return Truncate<int32_t>(static_cast<double>(position) / scale + 0.5);
  }

  Labeler& labeler = SharedLabeler();
  int64_t position = 0;  // physical
  int32_t previous = -1;
};
