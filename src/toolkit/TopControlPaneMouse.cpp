// How the mouse's events reach the control that they are for.
#include <algorithm>
#include <utility>

#include "toolkit/PopupContextMenu.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/TopControlPane.h"

namespace {

// Where a context menu opens, seen from the press.
constexpr int32_t kMenuOffsetX = 1;
constexpr int32_t kMenuOffsetY = -4;

Point InSpaceOf(const ControlPane& control, const Point& point) {
  Point local = point;
  control.GlobalToLocalPoint(&local);
  return local;
}

}  // namespace

bool TopControlPane::MouseDown(const Point& point, const Modifiers& modifiers, bool isDoubleClick,
                               int32_t button) {
  const ControlWatch self(this);
  const ControlWatch hit(HitTest(point));
  if (!hit || !PrepareForPress(hit.Get())) return false;
  OnCaptureGained(hit.Get());
  if (!self || !hit) return true;
  SetCapture(hit.Get());
  RecordPress(point, modifiers, isDoubleClick, button);
  if (self && hit) hit->BeginTracking(windowContext, point, modifiers, isDoubleClick, button);
  if (self && hit && windowContext != nullptr) {
    hit->OnMouseDown(windowContext, InSpaceOf(*hit.Get(), point));
  }
  return true;
}

// Moves focus and popup out of the way of a press. False where the control can't be pressed.
bool TopControlPane::PrepareForPress(ControlPane* hit) {
  const ControlWatch self(this);
  const ControlWatch watched(hit);
  if (focusedControl && ClickClearsFocus(focusedControl.Get(), hit)) ClearFocus(true);
  if (!self || !watched) return false;
  ControlPane* const popup = GetPopup();
  if (popup != nullptr && ClickClosesPopup(popup, hit)) HidePopup();
  return self && watched && Belongs(hit) && windowContext != nullptr && hit->IsEnabled();
}

void TopControlPane::RecordPress(const Point& point, const Modifiers& modifiers, bool isDoubleClick,
                                 int32_t button) {
  downPoint = point;
  downModifiers = modifiers;
  doubleClick = isDoubleClick;
  mouseButton = button;
  lastMousePoint = point;
}

bool TopControlPane::RightMouseDown(const Point& point, const Modifiers& modifiers,
                                    bool isDoubleClick) {
  const ControlWatch self(this);
  const ControlWatch hit(HitTest(point));
  if (!hit || !PrepareForPress(hit.Get())) return false;
  RecordPress(point, modifiers, isDoubleClick, kRightButton);
  hit->BeginTracking(windowContext, point, modifiers, isDoubleClick, kRightButton);
  if (self && hit && windowContext != nullptr) {
    hit->OnRightMouseDown(windowContext, InSpaceOf(*hit.Get(), point));
  }
  // No release will end it, unless the other button holds it already.
  if (self && hit && hit.Get() != GetCapture()) hit->SetTrackingMode(kTrackNone);
  if (self && hit) OpenContextMenu(hit.Get(), point);
  return true;
}

void TopControlPane::OpenContextMenu(ControlPane* hit, const Point& point) {
  const ControlWatch self(this);
  for (ControlWatch pane(hit); pane; pane = pane->GetOwner()) {
    bool handled = false;
    PopupContextMenu* const menu =
        pane->GetContextMenu(windowContext, InSpaceOf(*pane.Get(), point), &handled);
    if (!self || handled) return;
    if (menu != nullptr) {
      menu->ShowAt(*this, MovedBy(point, kMenuOffsetX, kMenuOffsetY), GetGlobalBounds());
      return;
    }
    if (!pane) return;
  }
}

void TopControlPane::MouseDrag(const Point& point, float dx, float dy,
                               const Modifiers& /*modifiers*/, int32_t /*button*/) {
  if (windowContext == nullptr || !capturedControl || IsMoveFiltered()) return;
  lastMousePoint = point;
  lastMouseDeltaX = dx;
  lastMouseDeltaY = dy;
  ControlPane& captured = *capturedControl.Get();
  const Point local = InSpaceOf(captured, point);
  switch (captured.GetTrackingMode()) {
    case kTrackPress:
      captured.OnMouseDrag(windowContext, local);
      break;
    case kTrackMove:
      captured.DragMove(windowContext, local);
      break;
    case kTrackResize:
      captured.DragResize(windowContext, local);
      break;
    default:
      break;
  }
}

void TopControlPane::SetMouseMoveFilter(std::unique_ptr<MouseMoveFilter> filter) {
  mouseMoveFilter = std::move(filter);
}

bool TopControlPane::IsMoveFiltered() const {
  return mouseMoveFilter != nullptr &&
         mouseMoveFilter->Matches(windowContext->GetScreenMousePosition());
}

bool TopControlPane::MouseUp(const Point& point, int32_t /*button*/) {
  const ControlWatch self(this);
  SetMouseMoveFilter(nullptr);
  bool delivered = false;
  if (windowContext != nullptr) {
    windowContext->ShowCursor(true);
    delivered = capturedControl && capturedControl->GetTrackingMode() != kTrackNone;
    if (delivered) ReleaseCaptured(*capturedControl.Get(), point);
  }
  if (self) ReleaseCapture();
  return delivered;
}

void TopControlPane::ReleaseCaptured(ControlPane& captured, const Point& point) {
  const ControlWatch self(this);
  captured.OnMouseUp(windowContext, InSpaceOf(captured, point));
  if (self && capturedControl) capturedControl->EndTracking();
}

void TopControlPane::OnCaptureGained(ControlPane* /*control*/) {}

void TopControlPane::OnCaptureLost(ControlPane* /*control*/) {}

void TopControlPane::SetCapture(ControlPane* control) {
  capturedControl = Belongs(control) ? control : nullptr;
}

void TopControlPane::ReleaseCapture() {
  const ControlWatch self(this);
  OnCaptureLost(capturedControl.Get());
  if (self) SetCapture(nullptr);
}

ControlPane* TopControlPane::GetCapture() const {
  return capturedControl.Get();
}

Point TopControlPane::GetLastMousePoint() const {
  return lastMousePoint;
}

void TopControlPane::GetLastMouseDelta(float* dx, float* dy) const {
  *dx = lastMouseDeltaX;
  *dy = lastMouseDeltaY;
}

int32_t TopControlPane::MouseOver(const Point& point, const Modifiers& modifiers) {
  const ControlWatch self(this);
  ControlPane* const popup = GetPopup();
  ControlPane* under = nullptr;
  if (popup != nullptr) {
    under = popup->HitTest(point);
  } else {
    under = hoverOwner ? hoverOwner.Get() : HitTest(point);
  }
  const ControlWatch hit(under);
  MoveHover(under);
  if (!self) return 0;
  int32_t cursor = hit ? AskForCursor(hit.Get(), point, modifiers) : 0;
  if (!self) return cursor;
  if (cursor == kKeepPointerWithCursor0) cursor = 0;
  const int32_t cursorId = cursor < 0 ? SaturatedInt(-int64_t{cursor}) : cursor;
  if (cursorId != currentCursor && windowContext != nullptr) {
    currentCursor = cursorId;
    windowContext->SetCursor(cursorId);
  }
  return cursor;
}

// The hover becomes that of `hit` and its owners; null is no hover.
void TopControlPane::MoveHover(ControlPane* hit) {
  const ControlWatch self(this);
  std::vector<ControlWatch> entered;
  for (ControlPane* pane = hit; pane != nullptr; pane = pane->GetOwner()) {
    entered.emplace_back(pane);
  }
  std::vector<ControlWatch> left = hoverSet;
  hoverSet = entered;
  for (const ControlWatch& pane : entered) {
    // A hook in here may have taken controls out of the tree.
    const bool stays = pane && (hoverSet.size() == entered.size() || Belongs(pane.Get()));
    if (stays && !pane->IsMouseOver()) pane->OnMouseEnter();
    if (!self) return;
  }
  std::vector<const ControlPane*> kept;
  for (const ControlWatch& pane : hoverSet) kept.push_back(pane.Get());
  std::sort(kept.begin(), kept.end());
  for (const ControlWatch& pane : left) {
    if (!pane || !pane->IsMouseOver()) continue;
    if (!std::binary_search(kept.begin(), kept.end(), pane.Get())) pane->OnMouseLeave();
  }
}

int32_t TopControlPane::AskForCursor(ControlPane* hit, const Point& point,
                                     const Modifiers& modifiers) {
  if (!hit->IsVisible() || !hit->IsEnabled() || windowContext == nullptr) {
    // A control that can't answer any more must not keep the pointer for ever.
    hoverOwner = nullptr;
    return 0;
  }
  const ControlWatch self(this);
  const ControlWatch watched(hit);
  const int32_t cursor = hit->GetCursorAt(windowContext, InSpaceOf(*hit, point), modifiers);
  if (self) hoverOwner = cursor < 0 && Belongs(watched.Get()) ? watched.Get() : nullptr;
  return cursor;
}
