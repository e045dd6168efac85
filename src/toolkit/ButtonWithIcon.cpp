// A button that has icons for its states; how they look is its subclasses' affair.
#include "toolkit/ButtonWithIcon.h"

#include "platform/Truncate.h"
#include "toolkit/RectAlgebra.h"

namespace {

constexpr int32_t kOpaque = 256;
constexpr int32_t kDisabledIcon = 50;

int32_t LogicalSize(int32_t pixels, float scale) {
  return Truncate<int32_t>(static_cast<float>(pixels) / scale);
}

}  // namespace

void ButtonWithIcon::SetEnabled(bool enabled) {
  SetStateTree(enabled ? kStateNormal : kStateDisabled);
  SetDirty(true);
  RedrawIfParametersChanged();
}

void ButtonWithIcon::SetIconPair(NativeImageBuffer* normal, NativeImageBuffer* whenPressed,
                                 bool own) {
  // Those that go were the button's or not by what was agreed for them.
  SetIcon(kButtonNormal, normal);
  SetIcon(kButtonPressed, whenPressed);
  SetOwnsIcons(own);
}

void ButtonWithIcon::SetIcon(int32_t index, NativeImageBuffer* image) {
  if (icons.Set(index, image)) SetDirty(true);
}

void ButtonWithIcon::SetOwnsIcons(bool own) {
  icons.SetOwned(own);
}

NativeImageBuffer* ButtonWithIcon::GetCurrentIcon() const {
  const auto isSet = [this](int32_t index) { return icons.Get(index) != nullptr; };
  const bool isOn = isToggle && pressed;
  if (!IsEnabled()) {
    if (isOn && isSet(kButtonDisabledPressed)) return icons.Get(kButtonDisabledPressed);
    if (isSet(kButtonDisabled)) return icons.Get(kButtonDisabled);
  }
  if (isOn) {
    const bool showsOver = ShowsHover() && isSet(kButtonPressedOver);
    return icons.Get(showsOver ? kButtonPressedOver : kButtonPressed);
  }
  if (ShowsHover() && isSet(kButtonOver)) return icons.Get(kButtonOver);
  if (pressed && isSet(kButtonPressed)) return icons.Get(kButtonPressed);
  return icons.Get(kButtonNormal);
}

void ButtonWithIcon::PaintIcon(const PaintArea& area, ImageBuffer& buffer) const {
  const NativeImageBuffer* icon = GetCurrentIcon();
  if (icon == nullptr) return;
  const int32_t width = LogicalSize(icon->Width(), icon->Scale());
  const int32_t height = LogicalSize(icon->Height(), icon->Scale());
  const Rect& place = area.bounds;
  // Across, the halves are cut off one by one; down, their difference is.
  const int64_t x = place.left + (int64_t{place.right} - place.left) / 2 - width / 2;
  const int64_t y = place.top + (int64_t{place.bottom} - place.top - height) / 2;
  icon->BlendTo(buffer, {0, 0, width, height}, SaturatedInt(x), SaturatedInt(y),
                IsEnabled() ? kOpaque : kDisabledIcon, &area.clip, false);
}
