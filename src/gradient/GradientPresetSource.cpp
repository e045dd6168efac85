// The six colour maps that the panel offers.
#include "gradient/GradientPresetSource.h"

#include <cstddef>
#include <vector>

#include "drawing/SharedPainter.h"
#include "gradient/GradientRamp.h"
#include "gradient/GradientStops.h"
#include "gradient/RampColor.h"
#include "gradient/RampColumn.h"
#include "gradient/RampIndex.h"
#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

struct PresetStop {
  int32_t position;
  float red;
  float green;
  float blue;
};

using PresetStops = std::vector<PresetStop>;

const PresetStops kPresets[] = {
    {{0, 1.0F, 0.0F, 0.0F},
     {50, 1.0F, 1.0F, 0.0F},
     {100, 0.0F, 1.0F, 0.0F},
     {150, 0.0F, 1.0F, 1.0F},
     {200, 0.0F, 0.0F, 1.0F}},
    {{0, 1.0F, 1.0F, 1.0F}, {200, 0.0F, 0.0F, 0.0F}},
    {{0, 1.0F, 1.0F, 1.0F}, {50, 0.0F, 1.0F, 1.0F}, {200, 0.0F, 0.0F, 1.0F}},
    {{0, 1.0F, 1.0F, 0.0F},
     {50, 1.0F, 0.0F, 0.0F},
     {100, 1.0F, 0.5F, 0.75F},
     {150, 1.0F, 0.5F, 1.0F},
     {200, 0.63F, 0.0F, 1.0F}},
    {{50, 0.0F, 1.0F, 0.0F}, {150, 0.0F, 0.5F, 0.0F}},
    {{25, 0.0F, 0.0F, 0.0F}, {100, 0.5F, 0.5F, 0.75F}, {200, 1.0F, 1.0F, 1.0F}},
};

constexpr Rect kPictureInset = {6, 2, -6, -2};
constexpr ColorBGRA kFrame = Gray(10);
constexpr int32_t kOpacity = 255;
constexpr double kLineWidth = 1.0;

Rect PictureIn(const Rect& row) {
  return {SaturatedInt(int64_t{row.left} + kPictureInset.left),
          SaturatedInt(int64_t{row.top} + kPictureInset.top),
          SaturatedInt(int64_t{row.right} + kPictureInset.right),
          SaturatedInt(int64_t{row.bottom} + kPictureInset.bottom)};
}

void DrawFrame(ImageBuffer& buffer, const Rect& rect, ColorBGRA color, const Rect& clip) {
  SharedPath().SetRoundRect(rect, 0.0, true, true, true, true);
  SharedRasterizer().DrawPath(SharedPath(), buffer, color, kOpacity, false, &clip, nullptr,
                              kLineWidth);
}

}  // namespace

GradientPresetSource::GradientPresetSource() {
  GradientView scratch = GradientView::WithOwnArrays();
  for (const PresetStops& stops : kPresets) {
    ClearStops(scratch);
    for (const PresetStop& stop : stops) {
      InsertStop(scratch, stop.position, stop.red, stop.green, stop.blue);
    }
    RebuildRamp(scratch);
    presets.push_back(std::make_unique<GradientRecord>());
    GradientView preset(*presets.back());
    CopyColorMap(scratch, preset);
  }
}

int32_t GradientPresetSource::GetPresetCount() const {
  return static_cast<int32_t>(presets.size());
}

GradientView GradientPresetSource::GetPreset(int32_t index) const {
  return GradientView(*presets.at(static_cast<size_t>(index)));
}

void GradientPresetSource::PaintPreset(int32_t index, ImageBuffer& buffer, const Rect& rect,
                                       const Rect& clip, bool highlighted) const {
  const GradientView preset = GetPreset(index);
  const Rect picture = PictureIn(rect);
  const int32_t width = SaturatedInt(int64_t{picture.right} - picture.left);
  const double step = static_cast<double>(GradientRampSize) / width;
  double place = 0.0;
  for (int32_t column = 0; column < width; ++column) {
    const int32_t entry = HoldToRamp(Truncate<int32_t>(place));
    const int32_t left = picture.left + column;
    FillColumn(
        buffer, {left, picture.top, left + 1, picture.bottom},
        PixelOf(preset.colorMapRed[entry], preset.colorMapGreen[entry], preset.colorMapBlue[entry]),
        kOpacity, clip);
    place += step;
  }
  DrawFrame(buffer, picture, highlighted ? ThemeColors::White : kFrame, clip);
}
