// What goes on in a control between events: bound parameters, idling, waiting.
#include <algorithm>

#include "toolkit/ChildWalk.h"
#include "toolkit/Clock.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"

void ControlPane::AddParameter(Parameter* parameter) {
  parameters.push_back(parameter);
}

Parameter* ControlPane::GetParameter(int32_t index) const {
  if (index < 0 || static_cast<size_t>(index) >= parameters.size()) return nullptr;
  return parameters[static_cast<size_t>(index)];
}

bool ControlPane::SyncFromParameters() {
  return false;
}

bool ControlPane::AnyParameterChanged() const {
  return std::any_of(parameters.begin(), parameters.end(), [](const Parameter* parameter) {
    return parameter != nullptr && parameter->HasChanged();
  });
}

bool ControlPane::TakeChangedParameters() {
  return IsEnabled() && AnyParameterChanged() && SyncFromParameters();
}

void ControlPane::UpdateTree() {
  const ControlWatch self(this);
  const bool wasDirty = IsDirty();
  if (wasDirty) ClearDirtyTree();
  if (!self) return;
  const bool changed = TakeChangedParameters() || wasDirty;
  if (self && changed) RedrawSelf();
  if (!self) return;
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) child->UpdateTree();
  if (self) StepAnimations();
}

void ControlPane::OnIdle(WindowContext* /*context*/) {}

void ControlPane::IdleTree() {
  ChildWalk walk(*this, ChildWalk::Direction::kFromTop);
  while (ControlPane* const child = walk.Next()) {
    if (child->IsEnabled()) child->IdleTree();
  }
  if (walk.PaneIsGone() || !IsEnabled()) return;
  if (WindowContext* const context = GetWindowContext()) OnIdle(context);
}

void ControlPane::Pause(int32_t milliseconds) {
  CurrentClock().Sleep(milliseconds);
}
