// The children of a control: adding, taking out, ordering and finding them.
#include <algorithm>
#include <iterator>

#include "toolkit/ChildWalk.h"
#include "toolkit/ControlPane.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/TopControlPane.h"

void ControlPane::AddChild(ControlPane* child, bool atFront) {
  if (CanAdopt(child)) Link(child, atFront ? children.begin() : children.end());
}

void ControlPane::InsertChild(ControlPane* child, int32_t index) {
  if (!CanAdopt(child)) return;
  const ControlPane* const follower = GetChildAt(index);
  Link(child, follower != nullptr ? follower->placeInOwner : children.end());
}

bool ControlPane::CanAdopt(const ControlPane* child) {
  if (child == nullptr || child == this || child->isLinked) return false;
  if (dynamic_cast<const TopControlPane*>(child) != nullptr) return false;
  if (child->firstWard == nullptr) return true;
  ControlPane* outermost = nullptr;  // of the subtree that this control is in
  for (ControlPane* pane = this; pane != child; pane = pane->owner) {
    if (outermost == nullptr && !pane->isLinked) outermost = pane;
    if (pane->owner == nullptr) return true;
  }
  // A control that was taken out still names its owner; owning that owner would close a ring.
  if (outermost != nullptr) outermost->SetOwner(nullptr);
  return outermost != nullptr;
}

void ControlPane::Link(ControlPane* child, std::list<ControlPane*>::iterator before) {
  child->placeInOwner = children.insert(before, child);
  child->isLinked = true;
  child->SetOwner(this);
}

void ControlPane::Unlink(ControlPane* child) {
  for (ChildWalk* walk = firstWalk; walk != nullptr; walk = walk->next) {
    if (walk->at == child->placeInOwner) walk->Step();
  }
  children.erase(child->placeInOwner);
  child->isLinked = false;
}

void ControlPane::RemoveChild(ControlPane* child) {
  if (!ContainsChild(child)) return;
  const ControlWatch self(this);
  const ControlWatch watchedChild(child);
  TopControlPane* const top = GetTopOwnerPtr();
  const ControlWatch watchedTop(top);
  if (top != nullptr) top->OnChildRemoved(child);
  if (!self || !watchedChild || !ContainsChild(child)) return;
  Unlink(child);
  // A hook in there may have given the child the focus again.
  if (top != nullptr && watchedTop) top->Forget(child);
}

void ControlPane::DeleteChild(ControlPane* child) {
  if (child == nullptr || child == this) return;
  const ControlWatch watchedChild(child);
  RemoveChild(child);
  if (watchedChild) DeleteUnlinked(child);
}

void ControlPane::DeleteAllChildren() {
  const ControlWatch self(this);
  while (self && !children.empty()) DeleteChild(children.front());
}

void ControlPane::MoveToFront() {
  if (owner != nullptr) owner->MoveChildToFront(this);
}

void ControlPane::MoveChildToFront(ControlPane* child) {
  if (!ContainsChild(child) || children.front() == child) return;
  const ControlWatch self(this);
  const ControlWatch watchedChild(child);
  RemoveChild(child);
  if (self && watchedChild) AddChild(child, true);
}

void ControlPane::MoveToBack() {
  if (owner != nullptr) owner->MoveChildToBack(this);
}

void ControlPane::MoveChildToBack(ControlPane* child) {
  if (!ContainsChild(child) || children.back() == child) return;
  const ControlWatch self(this);
  const ControlWatch watchedChild(child);
  RemoveChild(child);
  if (self && watchedChild) AddChild(child, false);
}

ControlPane* ControlPane::GetFirstChild() const {
  return children.empty() ? nullptr : children.front();
}

ControlPane* ControlPane::GetChildAt(int32_t index) const {
  if (index < 0 || index >= GetChildCount()) return nullptr;
  return *std::next(children.begin(), index);
}

int32_t ControlPane::GetChildIndex(const ControlPane* child) const {
  const auto found = std::find(children.begin(), children.end(), child);
  if (found == children.end()) return -1;
  return static_cast<int32_t>(std::distance(children.begin(), found));
}

bool ControlPane::ContainsChild(const ControlPane* child) const {
  return child != nullptr && child->isLinked && child->owner == this;
}

ControlPane* ControlPane::GetNextSibling() const {
  if (!isLinked || std::next(placeInOwner) == owner->children.end()) return nullptr;
  return *std::next(placeInOwner);
}

ControlPane* ControlPane::GetPreviousSibling() const {
  if (!isLinked || placeInOwner == owner->children.begin()) return nullptr;
  return *std::prev(placeInOwner);
}

ControlPane* ControlPane::FindChildById(int32_t childId) const {
  const auto found = std::find_if(children.begin(), children.end(),
                                  [childId](auto* child) { return child->GetId() == childId; });
  return found == children.end() ? nullptr : *found;
}

ControlPane* ControlPane::FindDescendantById(int32_t descendantId) const {
  ControlPane* pane = GetFirstChild();
  while (pane != nullptr && pane->GetId() != descendantId) pane = pane->NextInSubtree(this);
  return pane;
}

ControlPane* ControlPane::NextInSubtree(const ControlPane* top) const {
  if (!children.empty()) return children.front();
  for (const ControlPane* pane = this; pane != top; pane = pane->owner) {
    if (ControlPane* const sibling = pane->GetNextSibling()) return sibling;
  }
  return nullptr;
}

bool ControlPane::IsDescendant(const ControlPane* control) const {
  while (control != nullptr && control->isLinked) {
    control = control->owner;
    if (control == this) return true;
  }
  return false;
}
