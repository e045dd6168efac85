// Values that a control is moving to over time.
#pragma once

struct TweenedValue {
  double from = 0.0;
  double to = 0.0;
  double current = 0.0;
};

// Times in seconds of the clock.
struct BoundsTween {
  bool active = false;
  double startTime = 0.0;
  double duration = 0.0;
  TweenedValue left, top, right, bottom;
};

struct OpacityTween {
  bool active = false;
  double startTime = 0.0;
  double duration = 0.0;
  TweenedValue opacity;
};
