// A caption beside a number that is typed and dragged.
#include "toolkit/TitledScrubber.h"

#include <algorithm>
#include <memory>

namespace {

template <typename Control>
Control* Adopt(ControlPane& owner, std::unique_ptr<Control> control) {
  owner.ControlPane::AddChild(control.get(), false);
  return control.release();
}

}  // namespace

TitledScrubber::TitledScrubber(ControlPane* ownerPane, const Rect& initialBounds,
                               const std::string& caption, int32_t captionWidth,
                               uint32_t scrubberFlags)
    : ControlPane(ownerPane, initialBounds), titleWidth(captionWidth) {
  captionLabel = Adopt(*this, std::make_unique<TextLabel>(this, Rect{}, caption));
  numberScrubber = Adopt(*this, std::make_unique<NumericScrubber>(this, Rect{}, scrubberFlags));
  LayOut();
}

NumericScrubber* TitledScrubber::GetScrubber() const {
  return static_cast<NumericScrubber*>(numberScrubber.Get());
}

TextLabel* TitledScrubber::GetCaption() const {
  return static_cast<TextLabel*>(captionLabel.Get());
}

void TitledScrubber::SetBounds(const Rect& newBounds) {
  ControlPane::SetBounds(newBounds);
  LayOut();
}

void TitledScrubber::LayOut() {
  const Rect room = ControlPane::GetLocalBounds();
  const int32_t split = std::clamp(titleWidth, 0, std::max(0, room.right));
  if (captionLabel) captionLabel->SetBounds({0, 0, split, room.bottom});
  if (numberScrubber) numberScrubber->SetBounds({split, 0, room.right, room.bottom});
}

void TitledScrubber::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

void TitledScrubber::AddParameter(Parameter* parameter) {
  if (numberScrubber) numberScrubber->AddParameter(parameter);
}
