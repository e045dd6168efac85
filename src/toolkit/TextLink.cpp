// Text that acts on a click.
#include "toolkit/TextLink.h"

#include "toolkit/RectAlgebra.h"
#include "toolkit/TextField.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr ColorBGRA kNormal(0xFF5BA4D6);
constexpr ColorBGRA kOver(0xFF8CC8F0);
constexpr ColorBGRA kPressed(0xFFFAFAFA);
constexpr int32_t kOpaque = 256;

}  // namespace

void TextLink::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {
  SetPressed(true);
}

void TextLink::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  SetPressed(Contains(GetLocalBounds(), point));
}

void TextLink::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  const bool wasPressed = pressed;
  const ControlWatch self(this);
  SetPressed(false);
  if (self && wasPressed) NotifyReleased(this);
}

void TextLink::SetPressed(bool newPressed) {
  if (newPressed == pressed) return;
  pressed = newPressed;
  RedrawSelf();
}

void TextLink::OnMouseEnter() {
  ControlPane::OnMouseEnter();
  SetDirty(true);
}

void TextLink::OnMouseLeave() {
  ControlPane::OnMouseLeave();
  SetDirty(true);
}

bool TextLink::OnKeyDown(WindowContext* /*context*/, int32_t key, const Modifiers& /*modifiers*/) {
  return key == kKeyReturn;
}

bool TextLink::OnKeyUp(WindowContext* /*context*/, int32_t key, const Modifiers& /*modifiers*/) {
  if (key != kKeyReturn) return false;
  NotifyReleased(this);
  return true;
}

bool TextLink::HasFocus() {
  const TopControlPane* const root = GetOwner() != nullptr ? GetTopOwnerPtr() : nullptr;
  return root != nullptr && root->GetFocus() == this;
}

ColorBGRA TextLink::TextColor() const {
  if (pressed) return kPressed;
  return IsMouseOver() ? kOver : kNormal;
}

void TextLink::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  TextLabel::Paint(rect, buffer, position);
  if (!IsEnabled() || !(IsMouseOver() || pressed || HasFocus())) return;
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const TextStyle style = StyleFor(area.clip);
  const int64_t width = SharedLabeler().MeasureString(GetText().c_str(), 0);
  const int64_t slack = int64_t{area.bounds.right} - area.bounds.left - width;
  int64_t left = area.bounds.left;
  if (Alignment() == TextAlignment::kRight) left += slack;
  if (Alignment() == TextAlignment::kCentre) left += slack / 2;
  const int64_t lineSlack =
      int64_t{area.bounds.bottom} - area.bounds.top - SharedLabeler().GetLineHeight();
  const int64_t bottom = area.bounds.bottom - (lineSlack >> 1);
  buffer.FillRect({SaturatedInt(left), SaturatedInt(bottom), SaturatedInt(left + width),
                   SaturatedInt(bottom + 1)},
                  style.color, kOpaque, &area.clip);
}
