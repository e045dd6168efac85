// A button: it takes the press, the drag out and in again, and the release, and looks plain.
#include "toolkit/ButtonControl.h"

#include <cstddef>

#include "drawing/Labeler.h"
#include "drawing/SharedPainter.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kOpaque = 256;
constexpr int32_t kDisabledShapes = 180;
constexpr int32_t kDisabledImages = 150;
constexpr int32_t kKernThreshold = 128;
constexpr int32_t kKernLimit = 3;

Rect ShrunkBy(const Rect& rect, int64_t inset) {
  return {SaturatedInt(rect.left + inset), SaturatedInt(rect.top + inset),
          SaturatedInt(rect.right - inset), SaturatedInt(rect.bottom - inset)};
}

}  // namespace

ButtonControl::ButtonControl(ControlPane* ownerPane, const Rect& initialBounds,
                             const ImageBuffer* strip, bool toggle, const Font* labelFont)
    : ControlPane(ownerPane, initialBounds), stripImage(strip), font(labelFont), isToggle(toggle) {}

template <typename Value>
void ButtonControl::Change(Value& field, const Value& value) {
  if (field == value) return;
  field = value;
  SetDirty(true);
}

void ButtonControl::SetLabelTracking(int32_t scaled, int32_t normal) {
  Change(trackingScaled, scaled);
  Change(trackingNormal, normal);
}

void ButtonControl::SetLabelTrackingBoth(int32_t value) {
  SetLabelTracking(value, value);
}

void ButtonControl::SetLabels(const std::string& whenPressed, const std::string& otherwise) {
  Change(onLabel, whenPressed);
  Change(offLabel, otherwise);
}

void ButtonControl::SetLabelAlignment(int32_t alignment) {
  Change(labelAlignment, alignment);
}

void ButtonControl::SetLabelInsets(int32_t left, int32_t right) {
  Change(labelInsetLeft, left);
  Change(labelInsetRight, right);
}

void ButtonControl::SetStateColors(int32_t buttonState, const StateColors& colors) {
  if (buttonState < 0 || buttonState >= kButtonStateCount) return;
  Change(stateColors[static_cast<size_t>(buttonState)], colors);
}

void ButtonControl::SetStateImage(int32_t buttonState, ImageBuffer* image) {
  if (stateImages.Set(buttonState, image)) SetDirty(true);
}

void ButtonControl::SetFrame(float radius, int32_t thickness) {
  Change(cornerRadius, radius);
  Change(frameThickness, thickness);
}

void ButtonControl::OnMouseDown(WindowContext* /*context*/, const Point& /*point*/) {
  tracking = true;
  hoverSuppressed = true;
  pressed = !pressed;
  const ControlWatch self(this);
  RedrawSelf();
  if (!self) return;
  NotifyPressed(this);
}

void ButtonControl::OnMouseDrag(WindowContext* /*context*/, const Point& point) {
  if (isToggle) return;
  const bool inside = Contains(GetLocalBounds(), point);
  if (inside == pressed) return;
  pressed = inside;
  RedrawSelf();
}

void ButtonControl::OnMouseUp(WindowContext* /*context*/, const Point& /*point*/) {
  tracking = false;
  const bool tells = isToggle || pressed;
  if (!isToggle) pressed = false;
  const ControlWatch self(this);
  RedrawSelf();
  if (!self || !tells) return;
  NotifyReleased(this);
}

void ButtonControl::OnMouseEnter() {
  ControlPane::OnMouseEnter();
  SetDirty(true);
}

void ButtonControl::OnMouseLeave() {
  ControlPane::OnMouseLeave();
  hoverSuppressed = false;
  SetDirty(true);
}

void ButtonControl::OnFocusGained() {
  SetDirty(true);
}

void ButtonControl::OnFocusLost() {
  SetDirty(true);
}

void ButtonControl::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaToPaint(rect, position);
  if (PaintStrip(area, buffer)) return;
  const int32_t shown = ShownState();
  const StateColors colors = ResolveStateColors(stateColors, shown);
  const ImageBuffer* image = stateImages.Get(shown);
  Shape shape{colors.fill, colors.frame, frameThickness,
              colors.fill.alpha != 0 && image == nullptr};
  if (HasFocus()) {
    shape.thickness = SaturatedInt(int64_t{frameThickness} * 2);
    shape.frame = stateColors[kButtonFocused].frame;
  }
  if (image != nullptr) {
    image->CopyTo(buffer, image->Bounds(), area.bounds.left, area.bounds.top, ImageOpacity(),
                  &area.clip);
  }
  PaintShape(area, buffer, shape);
  DrawLabel(area.bounds, area.clip, colors.text, buffer, labelAlignment);
}

bool ButtonControl::PaintStrip(const PaintArea& area, ImageBuffer& buffer) const {
  if (stripImage == nullptr) return false;
  const int32_t half = stripImage->Width() / 2;
  const int32_t first = pressed ? half : 0;
  const Rect part = {first, 0, first + half, stripImage->Height()};
  const int64_t buttonWidth = int64_t{area.bounds.right} - area.bounds.left;
  const int32_t x = SaturatedInt(area.bounds.left + (buttonWidth - half) / 2);
  stripImage->BlendTo(buffer, part, x, area.bounds.top, ImageOpacity(), &area.clip, true);
  return true;
}

void ButtonControl::PaintShape(const PaintArea& area, ImageBuffer& buffer,
                               const Shape& shape) const {
  if (cornerRadius != 0.0F) {
    PaintRoundShape(area, buffer, shape);
  } else {
    PaintSquareShape(area, buffer, shape);
  }
}

void ButtonControl::PaintRoundShape(const PaintArea& area, ImageBuffer& buffer,
                                    const Shape& shape) const {
  const auto draw = [&](ColorBGRA color, double lineWidth) {
    SharedRasterizer().DrawPath(SharedPath(), buffer, color, ShapeOpacity(), false, &area.clip,
                                nullptr, lineWidth);
  };
  SharedPath().SetRoundRect(area.bounds, cornerRadius, true, true, true, true);
  if (shape.isFilled) draw(shape.fill, 0);
  if (shape.frame.alpha != 0 && shape.thickness > 0) draw(shape.frame, shape.thickness);
}

void ButtonControl::PaintSquareShape(const PaintArea& area, ImageBuffer& buffer,
                                     const Shape& shape) const {
  if (shape.thickness > 0) {
    buffer.DrawFrame(area.bounds, shape.frame, shape.thickness, ShapeOpacity(), &area.clip);
  }
  if (!shape.isFilled) return;
  // Where the button at rest lets the ground through, the fill of other states stays clear of the
  // frame by one pixel.
  const int64_t gap = stateColors[kButtonNormal].fill.alpha == 0 ? 1 : 0;
  buffer.FillRect(ShrunkBy(area.bounds, shape.thickness + gap), shape.fill, ShapeOpacity(),
                  &area.clip);
}

void ButtonControl::DrawLabel(const Rect& rect, const Rect& clip, const ColorBGRA& color,
                              ImageBuffer& buffer, int32_t alignment) {
  const std::string& set = pressed ? onLabel : offLabel;
  const char* label = !set.empty() ? set.c_str() : pressed ? "On" : "Off";
  Labeler& labeler = SharedLabeler();
  labeler.SetFont(font != nullptr ? font : &FontDefault(), kKernThreshold, kKernLimit, true);
  const Rect inner = {SaturatedInt(int64_t{rect.left} + labelInsetLeft), rect.top,
                      SaturatedInt(int64_t{rect.right} - labelInsetRight), rect.bottom};
  TextStyle style;
  style.color = color;
  style.background = ThemeColors::Black;
  style.clip = &clip;
  style.opacity = ShapeOpacity();
  style.tracking = labeler.IsScaled() ? trackingScaled : trackingNormal;
  labeler.DrawStringInRect(buffer, label, inner, static_cast<TextAlignment>(alignment), style);
}

PaintArea ButtonControl::AreaToPaint(const Rect& rect, const Point& position) const {
  return AreaInBuffer(GetLocalBounds(), rect, position);
}

bool ButtonControl::HasFocus() {
  TopControlPane* root = GetTopOwnerPtr();
  return root != nullptr && root->GetFocus() == this;
}

int32_t ButtonControl::ShownState() const {
  if (!IsEnabled()) return kButtonDisabled;
  if (pressed) return ShowsHover() ? kButtonPressedOver : kButtonPressed;
  return ShowsHover() ? kButtonOver : kButtonNormal;
}

int32_t ButtonControl::ShapeOpacity() const {
  return IsEnabled() ? kOpaque : kDisabledShapes;
}

int32_t ButtonControl::ImageOpacity() const {
  return IsEnabled() ? kOpaque : kDisabledImages;
}
