// Fixed text on one line.
#include "toolkit/TextLabel.h"

#include <utility>

#include "toolkit/ThemeColors.h"

TextLabel::TextLabel(ControlPane* ownerPane, const Rect& initialBounds, std::string labelText,
                     const Font* textFont)
    : ControlPane(ownerPane, initialBounds),
      text(std::move(labelText)),
      font(textFont != nullptr ? textFont : &FontDefault()) {}

void TextLabel::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

void TextLabel::SetText(const std::string& newText) {
  if (newText == text) return;
  text = newText;
  SetDirty(true);
}

void TextLabel::SetAlignment(TextAlignment newAlignment) {
  if (newAlignment == alignment) return;
  alignment = newAlignment;
  SetDirty(true);
}

ColorBGRA TextLabel::TextColor() const {
  return ThemeColors::Gray192;
}

TextStyle TextLabel::StyleFor(const Rect& clip) const {
  TextStyle style;
  style.color = IsEnabled() ? TextColor() : ThemeColors::Gray102;
  style.clip = &clip;
  SharedLabeler().SetFont(font);
  return style;
}

void TextLabel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const TextStyle style = StyleFor(area.clip);
  SharedLabeler().DrawStringInRect(buffer, text.c_str(), area.bounds, alignment, style);
}
