// A scrubber under the mouse, and what it looks like.
#include <memory>

#include "drawing/Labeler.h"
#include "platform/SaturatedInt.h"
#include "toolkit/Clock.h"
#include "toolkit/NumericScrubber.h"
#include "toolkit/NumericScrubberMouseMoveFilter.h"
#include "toolkit/PaintArea.h"
#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kUnitGap = 2;

Point CentreOf(const WindowContext& context) {
  const Point size = context.GetScreenSize();
  return {size.x / 2, size.y / 2};
}

}  // namespace

void NumericScrubber::OnMouseDown(WindowContext* context, const Point& point) {
  SetDirty(true);
  if (HasFocus()) {
    PressTyping(point);
  } else if (IsDoubleClick()) {
    TakeFocus();
  } else if (IsControlDown()) {
    if (Parameter* const parameter = GetParameter(0)) parameter->ResetToDefault();
    RedrawIfParametersChanged();
  } else {
    PressDial(context);
  }
}

void NumericScrubber::PressTyping(const Point& point) {
  if (IsDoubleClick()) {
    field.Edit().SelectAll();
  } else {
    field.Press(point.x, GetLocalBounds(), IsShiftDown());
  }
}

void NumericScrubber::PressDial(WindowContext* context) {
  pressPending = true;
  holdArmed = false;
  if (context == nullptr) return;
  dialing = true;
  pressPosition = context->GetMousePosition();
  context->ShowCursor(false);
  Recentre(*context);
  TopControlPane* const root = Root();
  if (root == nullptr) return;
  root->SetMouseMoveFilter(std::make_unique<NumericScrubberMouseMoveFilter>(CentreOf(*context)));
}

void NumericScrubber::Recentre(WindowContext& context) const {
  context.SetScreenMousePosition(CentreOf(context));
}

void NumericScrubber::OnMouseDrag(WindowContext* context, const Point& point) {
  pressPending = false;
  if (HasFocus()) {
    field.DragTo(point.x, GetLocalBounds());
    RedrawSelf();
    return;
  }
  if (!dialing || context == nullptr) return;
  const int64_t dx = int64_t{context->GetScreenMousePosition().x} - CentreOf(*context).x;
  const Modifiers modifiers = context->GetModifiers();
  Recentre(*context);
  if (dx == 0) return;
  const ControlWatch self(this);
  StepValue(SaturatedInt(dx), modifiers);
  if (self) RedrawSelf();
}

void NumericScrubber::OnMouseUp(WindowContext* context, const Point& /*point*/) {
  GiveBackPointer(context);
  const bool wasClick = pressPending;
  pressPending = false;
  SetDirty(true);
  if (wasClick) TakeFocus();
}

void NumericScrubber::GiveBackPointer(WindowContext* context) {
  if (!dialing) return;
  dialing = false;
  if (context == nullptr) return;
  context->SetMousePosition(pressPosition);
  context->ShowCursor(true);
}

void NumericScrubber::OnIdle(WindowContext* context) {
  FieldControl::OnIdle(context);
  if (HasFocus() || !pressPending) return;
  const uint32_t now = CurrentClock().Milliseconds();
  if (!holdArmed) {
    holdArmed = true;
    holdStartMs = now;
  } else if (now - holdStartMs >= uint32_t{kHoldMs}) {
    GiveBackPointer(context);
    if (TopControlPane* const root = Root()) root->SetMouseMoveFilter(nullptr);
    TakeFocus();
  }
}

FieldLook NumericScrubber::Look() {
  return {IsEnabled(), HasFocus(), pressPending || dialing, IsMouseOver()};
}

void NumericScrubber::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  const FieldLook look = Look();
  const bool isAtRest = !look.focused && !look.pressed && !look.over;
  if ((flags & kScrubberBare) == 0 || !isAtRest) {
    DrawFieldBox(buffer, area.bounds, ColorsOfField(look), area.clip);
  }
  field.DrawText(buffer, area.bounds, look, area.clip);
  if (unitText.empty()) return;
  TextStyle style;
  style.color = ColorsOfField(look).text;
  style.clip = &area.clip;
  const int32_t left = SaturatedInt(int64_t{field.TextEnd(area.bounds, look.focused)} + kUnitGap);
  SharedLabeler().SetFont(unitFont);
  SharedLabeler().DrawStringInRect(buffer, unitText.c_str(),
                                   {left, area.bounds.top, area.bounds.right, area.bounds.bottom},
                                   TextAlignment::kLeft, style);
}
