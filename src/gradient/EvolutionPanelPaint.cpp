// What the panel writes round its graph.
#include "drawing/Labeler.h"
#include "gradient/EvolutionPanel.h"
#include "gradient/RampColor.h"
#include "toolkit/PaintArea.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr const char* kHint = "Draw a curve or select a preset";
constexpr Rect kHintRow = {21, 6, 221, 26};
constexpr Rect kCaptionRow = {21, 130, 221, 150};
constexpr ColorBGRA kHintColor = Gray(160);
constexpr ColorBGRA kCaptionColor = Gray(197);
constexpr int32_t kOpacity = 255;
constexpr int32_t kDisabledOpacity = 64;

}  // namespace

void EvolutionPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  buffer.FillRect(area.bounds, background, 256, &area.clip);
  PaintCaptions(area, buffer);
}

void EvolutionPanel::PaintCaptions(const PaintArea& area, ImageBuffer& buffer) const {
  TextStyle style;
  style.clip = &area.clip;
  style.opacity = IsEnabled() ? kOpacity : kDisabledOpacity;
  const auto write = [&](const char* text, const Rect& row, TextAlignment alignment) {
    SharedLabeler().DrawStringInRect(buffer, text, MovedBy(row, area.bounds.left, area.bounds.top),
                                     alignment, style);
  };
  SharedLabeler().SetFont(&FontDefault());
  style.color = kHintColor;
  write(kHint, kHintRow, TextAlignment::kRight);
  SharedLabeler().SetFont(&FontSmall());
  style.color = kCaptionColor;
  write("Start", kCaptionRow, TextAlignment::kLeft);
  write(GetTitle().c_str(), kCaptionRow, TextAlignment::kCentre);
  write("End", kCaptionRow, TextAlignment::kRight);
}
