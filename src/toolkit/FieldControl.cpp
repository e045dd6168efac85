// What controls with a line of text to edit have in common.
#include "toolkit/FieldControl.h"

#include "toolkit/TopControlPane.h"

FieldControl::FieldControl(ControlPane* ownerPane, const Rect& initialBounds, const Font* textFont)
    : ControlPane(ownerPane, initialBounds),
      field(textFont != nullptr ? *textFont : FontDefault()) {}

void FieldControl::OnMouseEnter() {
  ControlPane::OnMouseEnter();
  SetDirty(true);
}

void FieldControl::OnMouseLeave() {
  ControlPane::OnMouseLeave();
  SetDirty(true);
}

void FieldControl::OnIdle(WindowContext* /*context*/) {
  if (HasFocus() && field.Blink()) SetDirty(true);
}

bool FieldControl::OnKeyUp(WindowContext* /*context*/, int32_t key,
                           const Modifiers& /*modifiers*/) {
  if (key != kKeyReturn && key != kKeyEscape) return false;
  if (HasFocus()) Root()->ClearFocus(key == kKeyReturn);
  return true;
}

void FieldControl::AddParameter(Parameter* parameter) {
  ControlPane::AddParameter(parameter);
  SyncFromParameters();
}

void FieldControl::SetEnabled(bool enabled) {
  ControlPane::SetEnabled(enabled);
  SetDirty(true);
}

bool FieldControl::HasFocus() {
  const TopControlPane* const root = Root();
  return root != nullptr && root->GetFocus() == this;
}

TopControlPane* FieldControl::Root() {
  return GetOwner() != nullptr ? GetTopOwnerPtr() : nullptr;
}

void FieldControl::TakeFocus() {
  TopControlPane* const root = Root();
  if (root != nullptr) root->SetFocus(this, true);
}

bool FieldControl::KeepsEdit() {
  const TopControlPane* const root = Root();
  return root != nullptr && root->FocusNotifies();
}
