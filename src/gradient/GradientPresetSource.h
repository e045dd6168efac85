// The six colour maps that the panel offers.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "gradient/GradientRecord.h"
#include "gradient/GradientView.h"
#include "gradient/QvPresetSource.h"

// The first one is the default map. An index outside the presets throws std::out_of_range.
class GradientPresetSource : public QvPresetSource {
 public:
  // Throws std::bad_alloc.
  GradientPresetSource();

  int32_t GetPresetCount() const override;
  // Draws the preset's ramp across the row, in a frame that is lit where the row is highlighted.
  void PaintPreset(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip,
                   bool highlighted) const override;

  // Looks into the preset; valid as long as the source.
  GradientView GetPreset(int32_t index) const;

 private:
  std::vector<std::unique_ptr<GradientRecord>> presets;
};
