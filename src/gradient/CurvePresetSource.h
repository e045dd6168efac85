// The six curves that the curve editor offers.
#pragma once

#include <array>
#include <cstdint>

#include "gradient/CurveView.h"
#include "gradient/QvPresetSource.h"

// An index outside the presets throws std::out_of_range.
class CurvePresetSource : public QvPresetSource {
 public:
  // height   of the graph that the presets' points are to fit, pixels
  explicit CurvePresetSource(int32_t height);

  int32_t GetPresetCount() const override;
  // Draws the preset's curve in the row, in a frame that is lit where the row is highlighted.
  void PaintPreset(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip,
                   bool highlighted) const override;

  const CurveRecord& GetPreset(int32_t index) const;

 private:
  std::array<CurveRecord, 6> presets;
};
