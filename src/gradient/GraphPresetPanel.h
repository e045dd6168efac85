// The place of the presets' drop-down in the panel.
#pragma once

#include "gradient/QvPresetListener.h"
#include "gradient/QvPresetSource.h"
#include "toolkit/ControlPane.h"

class GraphPresetPanel : public ControlPane {
 public:
  // source, listener   as for the drop-down
  GraphPresetPanel(ControlPane* ownerPane, const Rect& initialBounds, const QvPresetSource* source,
                   QvPresetListener* listener);
};
