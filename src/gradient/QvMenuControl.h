// The list of a drop-down of presets: a row is the picture of a preset.
#pragma once

#include "toolkit/ControlWatch.h"
#include "toolkit/MenuControl.h"

class QvPresetDropDown;

class QvMenuControl : public MenuControl {
 public:
  // Is as wide as the drop-down and tells its listener what was chosen.
  QvMenuControl(QvPresetDropDown& ownerDropDown, const Font* rowFont);

  void RebuildItems(const std::vector<std::string>* newLabels) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void PaintItem(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip) override;

 private:
  // Null once the drop-down is gone.
  QvPresetDropDown* GetDropDown() const;

  ControlWatch dropDown;
};
