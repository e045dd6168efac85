// Who is told when the user has changed the colour map.
#pragma once

class ControlPane;

class GradientListener {
 public:
  virtual ~GradientListener() = default;
  // The stops and the ramp have changed already. `sender` may be deleted in here.
  virtual void GradientChanged(ControlPane* sender) = 0;
};
