// A bar with round ends, kept as a small picture that is cut into ends and a middle.
#include "toolkit/ScrollStrip.h"

#include <algorithm>

#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr int32_t kEnd = 7;      // logical pixels that hold the round corners
constexpr int32_t kMiddle = 64;  // what is repeated between the ends
constexpr int32_t kLength = 2 * kEnd + kMiddle;
constexpr int32_t kThickest = 256;

int32_t PhysicalSide(int32_t side, float scale) {
  return Truncate<int32_t>(static_cast<float>(side) * scale + 0.5F);
}

}  // namespace

void ScrollStrip::Draw(const PaintTarget& target, const Rect& rect, bool horizontal,
                       ColorBGRA color) {
  if (IsEmpty(Intersection(rect, target.clip))) return;
  const int64_t length = horizontal ? WidthOf(rect) : HeightOf(rect);
  const int64_t thickness = horizontal ? HeightOf(rect) : WidthOf(rect);
  const ImageBuffer& buffer = target.buffer;
  Make({SaturatedInt(std::min<int64_t>(thickness, kThickest)), horizontal, color,
        buffer.IsScaleAware() ? buffer.Scale() : 1.0F});

  const auto end = static_cast<int32_t>(std::min<int64_t>(kEnd, length / 2));
  const int32_t start = horizontal ? rect.left : rect.top;
  const int32_t clipFrom = horizontal ? target.clip.left : target.clip.top;
  const int32_t clipTo = horizontal ? target.clip.right : target.clip.bottom;
  const int64_t middleEnd = length - end;
  DrawPiece(target, rect, 0, end, start);
  // The pieces that the clip doesn't show are passed over, however long the bar is.
  const int64_t passed = std::max<int64_t>((int64_t{clipFrom} - start - end) / kMiddle, 0);
  for (int64_t at = end + passed * kMiddle; at < middleEnd && start + at < clipTo; at += kMiddle) {
    const auto piece = static_cast<int32_t>(std::min<int64_t>(kMiddle, middleEnd - at));
    DrawPiece(target, rect, kEnd, kEnd + piece, start + at);
  }
  DrawPiece(target, rect, kLength - end, kLength, start + middleEnd);
}

void ScrollStrip::Make(const Key& wanted) {
  if (wanted == key) return;
  key = {};
  const Rect size = wanted.horizontal ? Rect{0, 0, kLength, wanted.thickness}
                                      : Rect{0, 0, wanted.thickness, kLength};
  picture.Release();
  picture.Allocate(PhysicalSide(size.right, wanted.scale), PhysicalSide(size.bottom, wanted.scale),
                   false);
  picture.SetScale(wanted.scale);
  picture.SetScaleAware(true);
  FillRound({picture, size, 256}, size, kCornerRadius, wanted.color);
  key = wanted;
}

void ScrollStrip::DrawPiece(const PaintTarget& target, const Rect& rect, int32_t from, int32_t to,
                            int64_t place) const {
  const int32_t at = SaturatedInt(place);
  const Rect source =
      key.horizontal ? Rect{from, 0, to, key.thickness} : Rect{0, from, key.thickness, to};
  picture.BlendTo(target.buffer, source, key.horizontal ? at : rect.left,
                  key.horizontal ? rect.top : at, target.opacity, &target.clip, false);
}
