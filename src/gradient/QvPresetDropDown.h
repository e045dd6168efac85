// A bar that drops a menu of presets.
#pragma once

#include <memory>

#include "gradient/QvPresetListener.h"
#include "gradient/QvPresetMenu.h"
#include "gradient/QvPresetSource.h"
#include "toolkit/ControlPane.h"
#include "toolkit/PopupToggle.h"

class QvPresetDropDown : public ControlPane, public PopupToggle {
 public:
  QvPresetDropDown(ControlPane* ownerPane, const Rect& initialBounds);

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  // Opens the menu under the bar, or closes whatever is open.
  void OnMouseDown(WindowContext* context, const Point& point) override;

  // Makes the menu anew with the source's presets. Not owned, may be null.
  void SetSource(const QvPresetSource* newSource);
  // Not owned, may be null.
  void SetListener(QvPresetListener* newListener);
  const QvPresetSource* GetSource() const { return source; }
  QvPresetListener* GetListener() const { return listener; }

 private:
  const QvPresetSource* source = nullptr;
  QvPresetListener* listener = nullptr;
  std::unique_ptr<QvPresetMenu> menu;
};
