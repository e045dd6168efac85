// Hears when a number begins to be typed and when that ends.
#pragma once

class NumericScrubber;

// May delete the scrubber and remove listeners in either call.
class NumericScrubberListener {
 public:
  virtual ~NumericScrubberListener() = default;
  virtual void OnScrubberFocusGained(NumericScrubber* scrubber) = 0;
  virtual void OnScrubberFocusLost(NumericScrubber* scrubber) = 0;
};
