// The keyboard's focus: who has it, and where Tab moves it.
#include <algorithm>

#include "toolkit/TopControlPane.h"

namespace {

constexpr int32_t kTabKey = 9;

}  // namespace

void TopControlPane::SetFocus(ControlPane* control, bool notify) {
  if (control == focusedControl.Get()) return;
  if (control != nullptr && !Belongs(control)) return;
  const ControlWatch self(this);
  const ControlWatch gaining(control);
  const ControlWatch losing(focusedControl.Get());
  focusNotifies = notify;
  focusedControl = nullptr;
  if (losing) losing->OnFocusLost();
  // Whoever took the focus in there keeps it.
  if (!self || focusedControl) return;
  pendingKey = 0;
  if (Belongs(gaining.Get())) {
    focusedControl = gaining.Get();
    gaining->OnFocusGained();
  }
  if (self) OnFocusChanged(focusedControl.Get());
}

void TopControlPane::OnFocusChanged(ControlPane* /*control*/) {}

void TopControlPane::FocusNext() {
  KeyDown(kTabKey, {});
}

void TopControlPane::ClearFocus(bool notify) {
  SetFocus(nullptr, notify);
}

ControlPane* TopControlPane::GetFocus() const {
  return focusedControl.Get();
}

bool TopControlPane::ClickClearsFocus(ControlPane* focused, ControlPane* hit) {
  return focused != hit;
}

bool TopControlPane::KeyDown(int32_t key, const Modifiers& modifiers) {
  if (key == kTabKey) return StepFocus(modifiers);
  ControlPane* const focused = focusedControl.Get();
  if (focused == nullptr || windowContext == nullptr) return false;
  if (!focused->IsVisible() || !focused->IsEnabled()) return false;
  return focused->OnKeyDown(windowContext, key, modifiers);
}

bool TopControlPane::StepFocus(const Modifiers& modifiers) {
  const auto count = static_cast<int32_t>(focusRing.size());
  const bool backward = modifiers.shift || modifiers.alt;
  int32_t index = GetFocusRingIndex(focusedControl.Get());
  if (index < 0) index = backward ? count : -1;
  for (int32_t visited = 0; visited < count; ++visited) {
    index = (index + (backward ? count - 1 : 1)) % count;
    ControlPane* const control = focusRing[static_cast<size_t>(index)].Get();
    if (control == nullptr || !control->IsVisible() || !control->IsEnabled()) continue;
    SetFocus(control, true);
    return true;
  }
  return false;
}

bool TopControlPane::KeyUp(int32_t key, const Modifiers& modifiers) {
  ControlPane* const focused = focusedControl.Get();
  if (focused == nullptr || windowContext == nullptr) return false;
  if (!focused->IsVisible() || !focused->IsEnabled()) return false;
  return focused->OnKeyUp(windowContext, key, modifiers);
}

void TopControlPane::SetPendingKey(int32_t key) {
  pendingKey = key;
}

void TopControlPane::ClearPendingKey() {
  pendingKey = 0;
}

void TopControlPane::ClearFocusRing() {
  focusRing.clear();
}

void TopControlPane::AddToFocusRing(ControlPane* control) {
  if (control != nullptr) focusRing.emplace_back(control);
}

void TopControlPane::RemoveFromFocusRing(ControlPane* control) {
  for (ControlWatch& entry : focusRing) {
    if (entry.Get() == control) entry = nullptr;
  }
}

int32_t TopControlPane::GetFocusRingIndex(const ControlPane* control) const {
  if (control == nullptr) return -1;
  const auto found = std::find_if(focusRing.begin(), focusRing.end(),
                                  [control](const auto& entry) { return entry.Get() == control; });
  return found == focusRing.end() ? -1 : static_cast<int32_t>(found - focusRing.begin());
}
