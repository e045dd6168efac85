// The six curves that the curve editor offers.
#include "gradient/CurvePresetSource.h"

#include <algorithm>
#include <cstddef>

#include "drawing/SharedPainter.h"
#include "gradient/CurveChain.h"
#include "gradient/CurveEdits.h"
#include "gradient/RampColor.h"
#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr Rect kPictureInset = {6, 2, -6, -2};
constexpr ColorBGRA kPlate = Gray(36);
constexpr ColorBGRA kFrame = Gray(10);
constexpr ColorBGRA kLine = Gray(200);
constexpr int32_t kOpacity = 255;
constexpr double kFilled = 0.0;
constexpr double kLineWidth = 1.0;

// From 0.0 to 1.0, level at both ends.
float Ease(float t) {
  return (3.0F - 2.0F * t) * (t * t);
}

float Constant(int32_t /*i*/) {
  return 1.0F;
}

float LinearFall(int32_t i) {
  return 1.0F - static_cast<float>(i) / 201.0F;
}

float RiseAndFall(int32_t i) {
  constexpr int32_t kTop = 50;
  if (i < kTop) return static_cast<float>(i) * 4.0F / 201.0F;
  return 1.0F - 0.006633499F * static_cast<float>(i - kTop);
}

float Bump(int32_t i) {
  const int32_t fromEnd = std::min(i, CurvePositionEnd - i);
  return fromEnd < 50 ? Ease(static_cast<float>(fromEnd) / 50.0F) : 1.0F;
}

float ShortFall(int32_t i) {
  if (i < 75) return 1.0F;
  return i < 126 ? 1.0F - Ease(static_cast<float>(i - 75) / 50.0F) : 0.0F;
}

float HoldThenFall(int32_t i) {
  if (i < 50 || (i >= 75 && i <= 190 && i % 5 == 0)) return 1.0F;
  return i < 175 ? 1.0F - Ease(static_cast<float>(i - 50) / 125.0F) : 0.0F;
}

using Shape = float (*)(int32_t position);
constexpr std::array<Shape, 6> kShapes = {Constant, LinearFall, RiseAndFall,
                                          Bump,     ShortFall,  HoldThenFall};

Rect PictureIn(const Rect& row) {
  return {SaturatedInt(int64_t{row.left} + kPictureInset.left),
          SaturatedInt(int64_t{row.top} + kPictureInset.top),
          SaturatedInt(int64_t{row.right} + kPictureInset.right),
          SaturatedInt(int64_t{row.bottom} + kPictureInset.bottom)};
}

void DrawRect(ImageBuffer& buffer, const Rect& rect, ColorBGRA color, const Rect& clip,
              double lineWidth) {
  SharedPath().SetRoundRect(rect, 0.0, true, true, true, true);
  SharedRasterizer().DrawPath(SharedPath(), buffer, color, kOpacity, false, &clip, nullptr,
                              lineWidth);
}

}  // namespace

// The points are fitted on a copy: fitting writes the line through them into the samples.
CurvePresetSource::CurvePresetSource(int32_t height) {
  for (size_t i = 0; i < presets.size(); ++i) {
    CurveRecord fitted;
    for (int32_t position = 0; position < CurveSampleCount; ++position) {
      fitted.samples[position] = kShapes[i](position);
    }
    presets[i] = fitted;
    FitCurve(ViewOf(fitted), height);
    std::copy_n(fitted.pointX, CurvePointLimit, presets[i].pointX);
    std::copy_n(fitted.pointY, CurvePointLimit, presets[i].pointY);
  }
}

int32_t CurvePresetSource::GetPresetCount() const {
  return static_cast<int32_t>(presets.size());
}

const CurveRecord& CurvePresetSource::GetPreset(int32_t index) const {
  return presets.at(static_cast<size_t>(index));
}

void CurvePresetSource::PaintPreset(int32_t index, ImageBuffer& buffer, const Rect& rect,
                                    const Rect& clip, bool highlighted) const {
  const CurveRecord& preset = GetPreset(index);
  const Rect picture = PictureIn(rect);
  const int32_t width = SaturatedInt(int64_t{picture.right} - picture.left);
  const int32_t height = SaturatedInt(int64_t{picture.bottom} - picture.top);
  DrawRect(buffer, picture, kPlate, clip, kFilled);
  // Columns that the clip cuts off are not gone through: a row may be as wide as there are numbers.
  const int32_t first = SaturatedInt(std::max<int64_t>(int64_t{clip.left} - picture.left, 0));
  const int32_t end = SaturatedInt(std::min<int64_t>(int64_t{clip.right} - picture.left, width));
  const double step = static_cast<double>(CurveSampleCount) / width;
  for (int32_t column = first; column < end; ++column) {
    const int32_t position = std::clamp(Truncate<int32_t>(column * step), 0, CurvePositionEnd);
    const auto top = Truncate<int32_t>(RowOfValue(preset.samples[position], height));
    const Rect line = MovedBy(Rect{column, top, column + 1, height}, picture.left, picture.top);
    buffer.FillRect(line, kLine, kOpacity, &clip);
  }
  DrawRect(buffer, picture, highlighted ? ThemeColors::White : kFrame, clip, kLineWidth);
}
