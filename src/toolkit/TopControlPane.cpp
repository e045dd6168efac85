// What the root holds for its tree: the window, the buffers, the open popup, idling and updates.
#include "toolkit/TopControlPane.h"

#include "toolkit/ChildWalk.h"
#include "toolkit/Clock.h"
#include "toolkit/SharedBuffers.h"

namespace {

constexpr uint32_t kIdlePeriodMs = 26;

}  // namespace

TopControlPane::TopControlPane(const Rect& initialBounds) : ControlPane(nullptr, initialBounds) {}

TopControlPane::~TopControlPane() {
  DeleteSubtree();
}

WindowContext* TopControlPane::GetWindowContext() {
  return windowContext;
}

NativeImageBuffer* TopControlPane::GetScreenBuffer() {
  return ScreenBuffer();
}

ImageBuffer* TopControlPane::GetScratchBuffer() {
  return ScratchBuffer();
}

ControlPane* TopControlPane::HitTest(const Point& point) {
  if (ControlPane* const popup = GetPopup()) {
    if (ControlPane* const hit = popup->HitTest(point)) return hit;
  }
  return ControlPane::HitTest(point);
}

void TopControlPane::IdleTree() {
  const uint32_t now = CurrentClock().Milliseconds();
  if (now - lastIdleMs < kIdlePeriodMs) return;
  lastIdleMs = now;
  const ControlWatch self(this);
  ControlPane::IdleTree();
  if (!self) return;
  const int32_t key = pendingKey;
  pendingKey = 0;
  if (key != 0 && focusedControl && windowContext != nullptr) {
    focusedControl->OnKeyDown(windowContext, key, windowContext->GetModifiers());
  }
}

void TopControlPane::UpdateTree() {
  const ControlWatch self(this);
  FlushParameterChanges();
  ControlPane::UpdateTree();
  if (self) NotifyParameterChanges();
  if (self) DeletePendingChildren();
}

void TopControlPane::DeletePendingChildren() {
  const ControlWatch self(this);
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) {
    if (!child->IsPendingDelete() || child == capturedControl.Get()) continue;
    const Rect area = child->GetBounds();
    DeleteChild(child);
    if (self) Redraw(area);
  }
}

void TopControlPane::OnParameterChanged(int32_t /*index*/) {}

void TopControlPane::OnChildRemoved(ControlPane* control) {
  Forget(control);
}

void TopControlPane::Forget(const ControlPane* control) {
  if (control == nullptr) return;
  const auto leaves = [control](const ControlWatch& held) {
    return held && (held.Get() == control || control->IsDescendant(held.Get()));
  };
  for (ControlWatch* const held : {&focusedControl, &capturedControl, &hoverOwner}) {
    if (leaves(*held)) *held = nullptr;
  }
  for (ControlWatch& entry : focusRing) {
    if (leaves(entry)) entry = nullptr;
  }
  // What is under it stays, to hear at the next move that the pointer has left.
  std::erase_if(hoverSet, [control](const auto& entry) { return entry.Get() == control; });
}

bool TopControlPane::Belongs(const ControlPane* control) const {
  return control != nullptr && (control == this || IsDescendant(control));
}

void TopControlPane::SetWindowContext(WindowContext* context) {
  windowContext = context;
}

void TopControlPane::ClearWindowContext() {
  windowContext = nullptr;
}

ControlPane* TopControlPane::ShowPopup(ControlPane* popup, bool /*modal*/, bool /*flag*/) {
  if (ControlPane* const open = GetPopup()) return open;
  if (popup == nullptr) return nullptr;
  const ControlWatch self(this);
  AddChild(popup, true);
  if (self && ContainsChild(popup)) Redraw(popup->GetBounds());
  return self ? GetPopup() : nullptr;
}

void TopControlPane::HidePopup() {
  const ControlWatch self(this);
  const ControlWatch popup(RemovePopup());
  if (!self) return;
  hoverOwner = nullptr;
  if (popup) Redraw(popup->GetBounds());
}

ControlPane* TopControlPane::GetPopup() const {
  ControlPane* const first = GetFirstChild();
  return first != nullptr && first->IsPopup() ? first : nullptr;
}

ControlPane* TopControlPane::RemovePopup() {
  const ControlWatch popup(GetPopup());
  if (popup) RemoveChild(popup.Get());
  return popup.Get();
}

bool TopControlPane::ClickClosesPopup(ControlPane* popup, ControlPane* hit) {
  if (popup == nullptr || hit == nullptr) return true;
  return hit != popup && !popup->IsDescendant(hit);
}
