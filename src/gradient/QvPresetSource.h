// Where a menu of presets gets its rows from.
#pragma once

#include <cstdint>

#include "drawing/ImageBuffer.h"
#include "drawing/Rect.h"

class QvPresetSource {
 public:
  virtual ~QvPresetSource() = default;
  virtual int32_t GetPresetCount() const = 0;
  // Draws one row of the menu; `rect` is the row's and `clip` cuts it, both in the buffer's logical
  // pixels.
  virtual void PaintPreset(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip,
                           bool highlighted) const = 0;
};
