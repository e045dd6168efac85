// Shows what has become of the colour map; in the panel's compact layout it has no room and shows
// nothing.
#pragma once

#include "gradient/GradientListener.h"
#include "gradient/GradientView.h"
#include "toolkit/ControlPane.h"

class GradientResult : public ControlPane, public GradientListener {
 public:
  using ControlPane::ControlPane;

  void GradientChanged(ControlPane* sender) override;

  // Not owned, valid during one event.
  void SetGradient(const GradientView* newGradient);

 private:
  const GradientView* gradient = nullptr;
};
