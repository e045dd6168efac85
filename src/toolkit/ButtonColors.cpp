// The colours of a plain button in each of its states.
#include "toolkit/ButtonColors.h"

#include <cstddef>

#include "toolkit/ThemeColors.h"

namespace {

void FillIfOpen(ColorBGRA& color, ColorBGRA fallback) {
  if (color.alpha == 0 && fallback.alpha != 0) color = fallback;
}

bool IsComplete(const StateColors& colors) {
  return colors.text.alpha != 0 && colors.fill.alpha != 0 && colors.frame.alpha != 0;
}

int32_t StateBehind(int32_t state, bool isPressed) {
  if (state == kButtonPressedOver) return kButtonOver;
  if (state == kButtonOver && isPressed) return kButtonPressed;
  return kButtonNormal;
}

}  // namespace

const ButtonColors& DefaultButtonColors() {
  constexpr ColorBGRA kOpen;
  static constexpr ButtonColors kColors = {{
      {},
      {ThemeColors::Gray179, kOpen, ThemeColors::Gray128},
      {ThemeColors::Gray204, kOpen, ThemeColors::Gray128},
      {ThemeColors::Black, ThemeColors::Gray204, ThemeColors::Gray76},
      {},
      {ThemeColors::Black, ThemeColors::Gray179, ThemeColors::Gray76},
      {ThemeColors::Gray179, kOpen, ThemeColors::White},
  }};
  return kColors;
}

StateColors ResolveStateColors(const ButtonColors& colors, int32_t state) {
  const bool isPressed = state == kButtonPressed || state == kButtonPressedOver;
  if (state < 0 || state >= kButtonStateCount) state = kButtonNormal;
  StateColors resolved;
  while (true) {
    const StateColors& entry = colors[static_cast<size_t>(state)];
    FillIfOpen(resolved.text, entry.text);
    FillIfOpen(resolved.fill, entry.fill);
    FillIfOpen(resolved.frame, entry.frame);
    if (state == kButtonNormal || IsComplete(resolved)) return resolved;
    state = StateBehind(state, isPressed);
  }
}
