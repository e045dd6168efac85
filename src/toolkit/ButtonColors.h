// The colours of a plain button in each of its states.
#pragma once

#include <array>
#include <cstdint>

#include "drawing/ColorBGRA.h"

// Which entry of the colours, or of a button's pictures, a button shows.
enum ButtonState : int32_t {
  kButtonDisabled = 0,
  kButtonNormal = 1,
  kButtonOver = 2,
  kButtonPressed = 3,
  kButtonDisabledPressed = 4,  // pictures only
  kButtonPressedOver = 5,
  kButtonFocused = 6,  // colours only: its frame goes round a button that has the focus
};

inline constexpr int32_t kButtonStateCount = 7;

// A colour of alpha 0 is one that the state leaves to another.
struct StateColors {
  ColorBGRA text;
  ColorBGRA fill;
  ColorBGRA frame;

  friend bool operator==(const StateColors&, const StateColors&) = default;
};

using ButtonColors = std::array<StateColors, kButtonStateCount>;

// The toolkit's own.
const ButtonColors& DefaultButtonColors();

// The colours that a button shows in a state: its own, and for those that it leaves open the ones
// of the states behind it, ending with Normal. Pressed-over looks at over, then at pressed; every
// other state looks at Normal at once. What Normal leaves open too has alpha 0. A state outside the
// table counts as Normal.
StateColors ResolveStateColors(const ButtonColors& colors, int32_t state);
