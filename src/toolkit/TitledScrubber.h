// A caption beside a number that is typed and dragged.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/NumericScrubber.h"
#include "toolkit/TextLabel.h"

// Owns both; being enabled or not goes for both. The scrubber takes the room right of the caption.
class TitledScrubber : public ControlPane {
 public:
  // captionWidth   logical pixels, held to the width of the control
  TitledScrubber(ControlPane* ownerPane, const Rect& initialBounds, const std::string& caption,
                 int32_t captionWidth, uint32_t scrubberFlags = 0);

  void SetBounds(const Rect& newBounds) override;
  void SetEnabled(bool enabled) override;
  // Of the scrubber.
  void AddParameter(Parameter* parameter) override;

  // Null where somebody has deleted it.
  NumericScrubber* GetScrubber() const;
  TextLabel* GetCaption() const;

 private:
  void LayOut();

  int32_t titleWidth;
  ControlWatch captionLabel;
  ControlWatch numberScrubber;
};
