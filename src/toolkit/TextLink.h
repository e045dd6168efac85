// Text that acts on a click.
#pragma once

#include "toolkit/TextLabel.h"

// The owner hears of a release inside (NotifyReleased) and may delete the link then. It is
// underlined while the pointer is over it.
class TextLink : public TextLabel {
 public:
  using TextLabel::TextLabel;

  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  void OnMouseUp(WindowContext* context, const Point& point) override;
  void OnMouseEnter() override;
  void OnMouseLeave() override;
  void OnFocusGained() override { SetDirty(true); }
  void OnFocusLost() override { SetDirty(true); }
  // Return clicks a link that has the focus.
  bool OnKeyDown(WindowContext* context, int32_t key, const Modifiers& modifiers) override;
  bool OnKeyUp(WindowContext* context, int32_t key, const Modifiers& modifiers) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

 protected:
  ColorBGRA TextColor() const override;

 private:
  bool HasFocus();
  void SetPressed(bool newPressed);

  bool pressed = false;
};
