// What a control is: shown, enabled, hovered, dirty, its id and its help.
#include "toolkit/ChildWalk.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"

namespace {

int32_t StateOf(bool enabled) {
  return enabled ? kStateNormal : kStateDisabled;
}

}  // namespace

void ControlPane::SetState(int32_t newState) {
  state = newState;
}

int32_t ControlPane::GetState() const {
  return state;
}

bool ControlPane::IsVisible() const {
  return state != kStateHidden && !pendingDelete;
}

bool ControlPane::IsEnabled() const {
  return state != kStateDisabled && !pendingDelete;
}

bool ControlPane::IsMouseOver() const {
  return mouseOver;
}

void ControlPane::SetStateTree(int32_t newState) {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->SetStateTree(newState);
  if (!walk.PaneIsGone()) SetState(newState);
}

void ControlPane::SetStateTreeKeepHidden(int32_t newState) {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->SetStateTreeKeepHidden(newState);
  if (!walk.PaneIsGone() && state != kStateHidden) SetState(newState);
}

void ControlPane::Hide() {
  if (IsVisible()) SetStateTree(kStateHidden);
}

void ControlPane::Show() {
  if (!IsVisible()) SetStateTree(kStateNormal);
}

void ControlPane::SetEnabled(bool enabled) {
  SetStateTree(StateOf(enabled));
}

void ControlPane::SetChildEnabled(int32_t childId, bool enabled, bool markDirty, bool sync) {
  const ControlWatch found(FindDescendantById(childId));
  if (found) found->SetStateTree(StateOf(enabled));
  if (found && sync) found->SyncFromParameters();
  if (found && markDirty) found->SetDirty(true);
}

void ControlPane::SetChildrenEnabled(bool enabled) {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->SetStateTree(StateOf(enabled));
}

void ControlPane::SetChildrenEnabledKeepHidden(bool enabled) {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->SetStateTreeKeepHidden(StateOf(enabled));
}

void ControlPane::SetPendingDelete(bool pending) {
  pendingDelete = pending;
}

bool ControlPane::IsPendingDelete() const {
  return pendingDelete;
}

void ControlPane::SetId(int32_t newId) {
  id = newId;
}

int32_t ControlPane::GetId() const {
  return id;
}

void ControlPane::SetOpacity(double newOpacity) {
  opacity = newOpacity;
}

double ControlPane::GetOpacity() const {
  return opacity;
}

bool ControlPane::IsPopup() const {
  return false;
}

void ControlPane::SetHelpText(const char* text) {
  helpText = text;
}

const char* ControlPane::GetHelpText() const {
  return helpText;
}

void ControlPane::SetHelpIndex(int32_t index) {
  helpIndex = index;
}

int32_t ControlPane::GetHelpIndex() const {
  return helpIndex;
}
