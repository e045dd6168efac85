// A block of text, broken into lines at its width.
#include "toolkit/TextPanel.h"

#include <algorithm>

#include "toolkit/RectAlgebra.h"
#include "toolkit/TextWrap.h"

namespace {

constexpr int32_t kLineGap = 2;

}  // namespace

void DrawTextBlock(ImageBuffer& buffer, const std::string& text, const Rect& rect, const Font& font,
                   TextAlignment alignment, const TextStyle& style) {
  if (IsEmpty(rect)) return;
  SharedLabeler().SetFont(&font);
  const int32_t lineHeight = std::max(1, SharedLabeler().GetLineHeight() + kLineGap);
  const int64_t height = int64_t{rect.bottom} - rect.top;
  const int32_t width = SaturatedInt(int64_t{rect.right} - rect.left);
  int64_t top = rect.top;
  for (const std::string& line :
       WrapText(text, font, width, SaturatedInt((height + lineHeight - 1) / lineHeight))) {
    const Rect place = {rect.left, SaturatedInt(top), rect.right, SaturatedInt(top + lineHeight)};
    SharedLabeler().DrawStringInRect(buffer, line.c_str(), place, alignment, style);
    top += lineHeight;
  }
}

void TextPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  DrawTextBlock(buffer, GetText(), area.bounds, TextFont(), Alignment(), StyleFor(area.clip));
}
