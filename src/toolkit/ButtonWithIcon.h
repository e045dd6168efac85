// A button that has icons for its states; how they look is its subclasses' affair.
#pragma once

#include <cstdint>

#include "drawing/NativeImageBuffer.h"
#include "toolkit/ButtonControl.h"

class ButtonWithIcon : public ButtonControl {
 public:
  using ButtonControl::ButtonControl;

  void SetEnabled(bool enabled) override;

  // Icons of the button at rest and pressed, and whether all icons are the button's from here on.
  virtual void SetIconPair(NativeImageBuffer* normal, NativeImageBuffer* whenPressed, bool own);
  // index   a ButtonState. The icon in its place is deleted if icons are owned, as they are at
  //         first; outside the states nothing changes and the icon stays the caller's.
  virtual void SetIcon(int32_t index, NativeImageBuffer* image);
  virtual void SetOwnsIcons(bool own);
  // The icon for what the button is in; null where it has none.
  virtual NativeImageBuffer* GetCurrentIcon() const;

 protected:
  // Draws the current icon in the middle, faint while the button is disabled.
  void PaintIcon(const PaintArea& area, ImageBuffer& buffer) const;

  ImageSlots<NativeImageBuffer> icons{true};
};
