// A block of text, broken into lines at its width.
#pragma once

#include "toolkit/TextLabel.h"

// "\n" begins a line too. Lines below the control's bottom aren't drawn.
class TextPanel : public TextLabel {
 public:
  using TextLabel::TextLabel;

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
};

// Writes a text in lines from the top of a rectangle of logical pixels, with the font of `font`.
void DrawTextBlock(ImageBuffer& buffer, const std::string& text, const Rect& rect, const Font& font,
                   TextAlignment alignment, const TextStyle& style);
